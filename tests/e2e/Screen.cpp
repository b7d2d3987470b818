#include "Screen.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "support/WaitFor.h"

namespace tromelo::testing::screen {

namespace {

void grab(const QString& directory, bool withPointer) {
  QProcess process;
  process.setWorkingDirectory(directory);
  if (isX11())
    process.start(QStringLiteral("ffmpeg"),
                  {QStringLiteral("-loglevel"), QStringLiteral("error"), QStringLiteral("-f"),
                   QStringLiteral("x11grab"), QStringLiteral("-draw_mouse"),
                   withPointer ? QStringLiteral("1") : QStringLiteral("0"), QStringLiteral("-i"),
                   qEnvironmentVariable("DISPLAY"), QStringLiteral("-frames:v"),
                   QStringLiteral("1"), QStringLiteral("shot.png")});
  else
    process.start(QStringLiteral("weston-screenshooter"));
  process.waitForFinished();
}

}  // namespace

bool isX11() { return qEnvironmentVariable("QT_QPA_PLATFORM") == QStringLiteral("xcb"); }

QImage shot(bool withPointer) {
  QTemporaryDir directory;
  grab(directory.path(), withPointer);
  const QStringList files = QDir(directory.path()).entryList({QStringLiteral("*.png")});
  if (files.isEmpty()) return {};
  return QImage(directory.filePath(files.first())).convertToFormat(QImage::Format_RGB32);
}

bool showsPointer() { return shot(true) != shot(); }

bool waitForShot(const QString& name, const std::function<bool(const QImage&)>& holds) {
  QImage last;
  const bool held = testing::waitFor([&] {
    last = shot();
    return !last.isNull() && holds(last);
  });
  const QString folder = QStringLiteral(TROMELO_SHOTS) +
                         (isX11() ? QStringLiteral("/x11/") : QStringLiteral("/wayland/"));
  QDir().mkpath(folder);
  last.save(folder + name + QStringLiteral(".png"));
  return held;
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

void press(const QString& keys) { run(QStringLiteral("xdotool"), {QStringLiteral("key"), keys}); }

QString windowOf(qint64 processId, const QString& title) {
  QString found;
  // A window that goes while the others are looked through ends the search with an error.
  const bool searched = testing::waitFor([&] {
    QProcess search;
    search.start(
        QStringLiteral("xdotool"),
        {QStringLiteral("search"), QStringLiteral("--all"), QStringLiteral("--onlyvisible"),
         QStringLiteral("--pid"), QString::number(processId), QStringLiteral("--name"), title});
    search.waitForFinished();
    found = QString::fromUtf8(search.readAllStandardOutput()).section(u'\n', 0, 0);
    return !search.readAllStandardError().contains("X Error");
  });
  EXPECT_TRUE(searched) << "for " << qPrintable(title);
  return found;
}

QRect geometryOf(const QString& windowId) {
  if (windowId.isEmpty()) return {};  // it would ask for a click on one
  // xdotool adds a title bar's height twice.
  const QString text = run(QStringLiteral("xwininfo"), {QStringLiteral("-id"), windowId});
  const auto number = [&text](const char* name) {
    return text.section(QLatin1StringView(name), 1).trimmed().section(u'\n', 0, 0).toInt();
  };
  return {number("Absolute upper-left X:"), number("Absolute upper-left Y:"), number("Width:"),
          number("Height:")};
}

namespace {

void xdotool(const QStringList& arguments) { run(QStringLiteral("xdotool"), arguments); }

}  // namespace

void movePointer(QPoint place) {
  xdotool({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
}

void pressButton(int button) { xdotool({QStringLiteral("mousedown"), QString::number(button)}); }

void releaseButton(int button) { xdotool({QStringLiteral("mouseup"), QString::number(button)}); }

void click(QPoint place, int times) {
  movePointer(place);
  xdotool({QStringLiteral("click"), QStringLiteral("--delay"), QStringLiteral("40"),
           QStringLiteral("--repeat"), QString::number(times), QStringLiteral("1")});
}

void dragPointer(const QList<QPoint>& places) {
  movePointer(places.first());
  pressButton();
  for (const QPoint& place : places.sliced(1)) movePointer(place);
  releaseButton();
}

}  // namespace tromelo::testing::screen
