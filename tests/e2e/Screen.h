#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>

#include "WaylandHand.h"
#include "support/WaitFor.h"

/// The virtual display that the tests run on, as a person sees and touches it.
namespace tromelo::testing::screen {

inline bool isX11() { return qEnvironmentVariable("QT_QPA_PLATFORM") == "xcb"; }
/// It lets tests move the pointer and press keys: X11 and labwc, but not weston.
inline bool hasHand() { return isX11() || qEnvironmentVariable("XDG_CURRENT_DESKTOP") == "labwc"; }

inline QPoint pointerPlace;  // where the hand last moved it

inline WaylandHand& hand() {
  static WaylandHand hand;
  return hand;
}

inline QString run(const QString& program, const QStringList& arguments,
                   const QString& directory = {}) {
  QProcess process;
  process.setWorkingDirectory(directory);
  process.start(program, arguments);
  process.waitForFinished();
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// X11: the window manager, pointer and keys.
inline QString xdotool(const QStringList& arguments) { return run("xdotool", arguments); }

/// What it shows now; the pointer where asked for on X11, always on labwc.
inline QImage shot(bool withPointer = false) {
  QTemporaryDir directory;
  if (isX11())
    run("ffmpeg",
        {"-loglevel", "error", "-f", "x11grab", "-draw_mouse", withPointer ? "1" : "0", "-i",
         qEnvironmentVariable("DISPLAY"), "-frames:v", "1", "shot.png"},
        directory.path());
  else
    run(hasHand() ? "grim" : "weston-screenshooter",
        hasHand() ? QStringList{"shot.png"} : QStringList(), directory.path());
  const QStringList files = QDir(directory.path()).entryList({"*.png"});
  if (files.isEmpty()) return {};
  return QImage(directory.filePath(files.first())).convertToFormat(QImage::Format_RGB32);
}

/// While nothing else changes.
inline bool showsPointer() {
  if (isX11()) return shot(true) != shot();
  // labwc draws its white arrow into the picture, always.
  const QImage arrow = shot().copy(QRect(pointerPlace, QSize(12, 18)));
  for (int y = 0; y < arrow.height(); ++y)
    for (int x = 0; x < arrow.width(); ++x)
      if (arrow.pixel(x, y) == qRgb(255, 255, 255)) return true;
  return false;
}

/// Waits until the shot satisfies `holds`; the last one is saved under `name` in the folder of
/// shots either way.
[[nodiscard]] inline bool waitForShot(const QString& name,
                                      const std::function<bool(const QImage&)>& holds) {
  QImage last;
  const bool held = waitFor([&] {
    last = shot();
    return !last.isNull() && holds(last);
  });
  const QString host = isX11() ? "/x11/" : hasHand() ? "/labwc/" : "/wayland/";
  const QString folder = TROMELO_SHOTS + host;
  QDir().mkpath(folder);
  last.save(folder + name + ".png");
  return held;
}

/// What is colourful: the window with the test picture.
inline QRect pictureIn(const QImage& image) {
  QRect picture;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour = image.pixelColor(x, y);
      if (colour.hsvSaturation() > 150 && colour.value() > 80) picture |= QRect(x, y, 1, 1);
    }
  return picture;
}

/// Something light lies on what is mostly dark there, as text does on a surface of ours.
inline bool isRead(const QImage& image, QRect place) {
  int dark = 0;
  int lightest = 0;
  for (int x = place.left(); x <= place.right(); ++x)
    for (int y = place.top(); y <= place.bottom(); ++y) {
      const int light = image.pixelColor(x, y).lightness();
      dark += light < 110;
      lightest = std::max(lightest, light);
    }
  return lightest > 190 && 2 * dark > place.width() * place.height();
}

inline void holdKeys(const QString& keys) {
  isX11() ? (void)xdotool({"keydown", keys}) : hand().setKeys(keys, true);
}
inline void letGoOfKeys(const QString& keys) {
  isX11() ? (void)xdotool({"keyup", keys}) : hand().setKeys(keys, false);
}
/// `keys` as xdotool names them: "ctrl+shift+l".
inline void press(const QString& keys) {
  if (isX11()) return (void)xdotool({"key", keys});
  holdKeys(keys);
  letGoOfKeys(keys);
}

/// The visible window of a process with this title, by its id; where the host has none, by its
/// title. Empty without one.
inline QString windowOf(qint64 processId, const QString& title) {
  if (!isX11()) return hand().hasWindow(title) ? title : QString();
  QString found;
  // A window that goes while the others are looked through ends the search with an error.
  EXPECT_TRUE(waitFor([&] {
    QProcess search;
    search.start("xdotool", {"search", "--all", "--onlyvisible", "--pid",
                             QString::number(processId), "--name", title});
    search.waitForFinished();
    found = QString::fromUtf8(search.readAllStandardOutput()).section(u'\n', 0, 0);
    return !search.readAllStandardError().contains("X Error");
  })) << "for "
      << qPrintable(title);
  return found;
}
/// A window whose title matches has the keyboard.
inline bool isActive(qint64 processId, const QString& title) {
  if (!isX11()) return hand().hasWindow(title, true);
  const QString id = windowOf(processId, title);
  return !id.isEmpty() && id == xdotool({"getactivewindow"});
}
inline void activate(qint64 processId, const QString& title) {
  if (!isX11()) return hand().activate(title);
  xdotool({"windowactivate", windowOf(processId, title)});
}
inline QRect geometryOf(const QString& windowId) {
  if (windowId.isEmpty()) return {};  // it would ask for a click on one
  if (!isX11()) return pictureIn(shot());
  // xdotool adds a title bar's height twice.
  const QString text = run("xwininfo", {"-id", windowId});
  const auto number = [&text](const char* name) {
    return text.section(name, 1).trimmed().section(u'\n', 0, 0).toInt();
  };
  return {number("Absolute upper-left X:"), number("Absolute upper-left Y:"), number("Width:"),
          number("Height:")};
}

/// Plugs the first screen in or, on labwc, the second, or pulls its plug.
inline void plugIn(int which) {
  isX11() ? (void)run("xrandr", {"--output", "screen", "--auto"})
          : press(QStringLiteral("Super_L+F%1").arg(which));
}
inline void unplug(int which) {
  isX11() ? (void)run("xrandr", {"--output", "screen", "--off"})
          : press(QStringLiteral("Super_L+F%1").arg(which + 2));
}

// The person's hand. Places are on the screen, buttons as X11 numbers them.

inline void movePointer(QPoint place) {
  pointerPlace = place;
  if (!isX11()) return hand().move(place, shot().size());
  xdotool({"mousemove", QString::number(place.x()), QString::number(place.y())});
}
inline void pressButton(int button = 1) {
  isX11() ? (void)xdotool({"mousedown", QString::number(button)}) : hand().setButton(button, true);
}
inline void releaseButton(int button = 1) {
  isX11() ? (void)xdotool({"mouseup", QString::number(button)}) : hand().setButton(button, false);
}
inline void click(QPoint place, int times = 1) {
  movePointer(place);
  for (int i = 0; i < times; ++i) {
    pressButton();
    releaseButton();
  }
}
/// Presses at the first place, goes through the others and lets go at the last.
inline void dragPointer(const QList<QPoint>& places) {
  movePointer(places.first());
  pressButton();
  for (const QPoint& place : places.sliced(1)) movePointer(place);
  releaseButton();
}

}  // namespace tromelo::testing::screen
