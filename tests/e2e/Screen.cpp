#include "Screen.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "WaylandHand.h"
#include "support/WaitFor.h"

namespace tromelo::testing::screen {

namespace {

void grab(const QString& directory, bool withPointer) {
  QProcess process;
  process.setWorkingDirectory(directory);
  if (isX11())
    process.start("ffmpeg",
                  {"-loglevel", "error", "-f", "x11grab", "-draw_mouse", withPointer ? "1" : "0",
                   "-i", qEnvironmentVariable("DISPLAY"), "-frames:v", "1", "shot.png"});
  else if (hasHand())
    process.start("grim", {"shot.png"});
  else
    process.start("weston-screenshooter");
  process.waitForFinished();
}

QPoint pointerPlace;  // where the hand last moved it

WaylandHand& hand() {
  static WaylandHand hand;
  return hand;
}

void xdotool(const QStringList& arguments) { run("xdotool", arguments); }

QString folderOfShots() {
  if (isX11()) return "/x11/";
  return hasHand() ? "/labwc/" : "/wayland/";
}

}  // namespace

bool hasHand() { return isX11() || qEnvironmentVariable("XDG_CURRENT_DESKTOP") == "labwc"; }

bool isX11() { return qEnvironmentVariable("QT_QPA_PLATFORM") == "xcb"; }

QImage shot(bool withPointer) {
  QTemporaryDir directory;
  grab(directory.path(), withPointer);
  const QStringList files = QDir(directory.path()).entryList({"*.png"});
  if (files.isEmpty()) return {};
  return QImage(directory.filePath(files.first())).convertToFormat(QImage::Format_RGB32);
}

bool showsPointer() {
  if (isX11()) return shot(true) != shot();
  // labwc draws its white arrow into the picture, always.
  const QImage arrow = shot().copy(QRect(pointerPlace, QSize(12, 18)));
  for (int y = 0; y < arrow.height(); ++y)
    for (int x = 0; x < arrow.width(); ++x)
      if (arrow.pixel(x, y) == qRgb(255, 255, 255)) return true;
  return false;
}

bool waitForShot(const QString& name, const std::function<bool(const QImage&)>& holds) {
  QImage last;
  const bool held = testing::waitFor([&] {
    last = shot();
    return !last.isNull() && holds(last);
  });
  const QString folder = QString(TROMELO_SHOTS) + folderOfShots();
  QDir().mkpath(folder);
  last.save(folder + name + ".png");
  return held;
}

QRect pictureIn(const QImage& image) {
  QRect picture;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour = image.pixelColor(x, y);
      if (colour.hsvSaturation() > 150 && colour.value() > 80) picture |= QRect(x, y, 1, 1);
    }
  return picture;
}

bool isRead(const QImage& image, QRect place) {
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

QString run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  process.waitForFinished();
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void press(const QString& keys) {
  if (isX11()) return xdotool({"key", keys});
  holdKeys(keys);
  letGoOfKeys(keys);
}

void holdKeys(const QString& keys) {
  isX11() ? xdotool({"keydown", keys}) : hand().setKeys(keys, true);
}

void letGoOfKeys(const QString& keys) {
  isX11() ? xdotool({"keyup", keys}) : hand().setKeys(keys, false);
}

bool isActive(qint64 processId, const QString& title) {
  if (!isX11()) return hand().hasWindow(title, true);
  const QString id = windowOf(processId, title);
  return !id.isEmpty() && id == run("xdotool", {"getactivewindow"});
}

void activate(qint64 processId, const QString& title) {
  if (!isX11()) return hand().activate(title);
  xdotool({"windowactivate", windowOf(processId, title)});
}

QString windowOf(qint64 processId, const QString& title) {
  if (!isX11()) return hand().hasWindow(title) ? title : QString();
  QString found;
  // A window that goes while the others are looked through ends the search with an error.
  const bool searched = testing::waitFor([&] {
    QProcess search;
    search.start("xdotool", {"search", "--all", "--onlyvisible", "--pid",
                             QString::number(processId), "--name", title});
    search.waitForFinished();
    found = QString::fromUtf8(search.readAllStandardOutput()).section(u'\n', 0, 0);
    return !search.readAllStandardError().contains("X Error");
  });
  EXPECT_TRUE(searched) << "for " << qPrintable(title);
  return found;
}

QRect geometryOf(const QString& windowId) {
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

void movePointer(QPoint place) {
  pointerPlace = place;
  if (!isX11()) return hand().move(place, shot().size());
  xdotool({"mousemove", QString::number(place.x()), QString::number(place.y())});
}

void pressButton(int button) {
  isX11() ? xdotool({"mousedown", QString::number(button)}) : hand().setButton(button, true);
}

void releaseButton(int button) {
  isX11() ? xdotool({"mouseup", QString::number(button)}) : hand().setButton(button, false);
}

void click(QPoint place, int times) {
  movePointer(place);
  for (int i = 0; i < times; ++i) {
    pressButton();
    releaseButton();
  }
}

void dragPointer(const QList<QPoint>& places) {
  movePointer(places.first());
  pressButton();
  for (const QPoint& place : places.sliced(1)) movePointer(place);
  releaseButton();
}

}  // namespace tromelo::testing::screen
