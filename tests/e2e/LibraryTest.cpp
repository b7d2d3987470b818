#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include "Drag.h"
#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

/// The home window on X11, under a person's hands.
class Library : public EndToEnd {
 protected:
  void SetUp() override {
    if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host has no keyboard";
    screen::movePointer({5, 700});
  }

  void startWith(const QStringList& recents) {
    const QString folder = player.homePath() + QStringLiteral("/config/Tromelo");
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/defaults.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QJsonObject stored{{QStringLiteral("recentFiles"), QJsonArray::fromStringList(recents)}};
    file.write(QJsonDocument(stored).toJson());
    file.close();
    start();
  }
  void start() {
    player.start();
    ASSERT_TRUE(waitFor([this] { return isActive("Tromelo"); }));
    id = window("Tromelo");
  }

  QRect frame() { return screen::geometryOf(id); }
  /// In the sidebar, of the window: the menu bar and the heading are above.
  QRect row(int number) { return {12, 28 + 54 + 28 * number, 200, 24}; }
  static int brightest(const QImage& image, const QRect& part) {
    int most = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
      for (int x = part.left(); x <= part.right(); ++x)
        most = std::max(most, image.pixelColor(x, y).lightness());
    return most;
  }
  /// So many rows and no more.
  bool showsRows(int count, const char* shot) {
    return screen::waitForShot(QString::fromLatin1(shot), [this, count](const QImage& image) {
      const auto isWritten = [&](int number) {
        return brightest(image, row(number).translated(frame().topLeft())) > 150;
      };
      return isWritten(count - 1) && !isWritten(count);
    });
  }
  /// A colour of the theme somewhere in the lower part of the pane.
  bool showsBelow(QColor colour, const char* shot) {
    return screen::waitForShot(QString::fromLatin1(shot), [&](const QImage& image) {
      const QRect pane = frame().adjusted(240, frame().height() - 120, -10, -5);
      for (int y = pane.top(); y <= pane.bottom(); ++y)
        for (int x = pane.left(); x <= pane.right(); ++x)
          if (image.pixelColor(x, y) == colour) return true;
      return false;
    });
  }

  QString id;
};

TEST_F(Library, SaysWhenARecentFileIsGoneAndForgetsItAtTheNextStart) {
  const QString gone = player.homePath() + QStringLiteral("/gone.mp4");
  ASSERT_TRUE(QFile::copy(clip("sample.mp4"), gone));
  startWith({clip("sample.mp4"), gone});
  ASSERT_TRUE(showsRows(2, "library-before"));
  ASSERT_TRUE(QFile::remove(gone));
  screen::click(frame().topLeft() + row(1).center());
  ASSERT_TRUE(player.waitUntil(
      [this] { return player.said(QStringLiteral("error")).startsWith(u"Could not play gone"); }));
  EXPECT_TRUE(showsBelow(QColor(0xff, 0x9f, 0x0a), "library-gone"));
  EXPECT_TRUE(showsRows(2, "library-gone-rows"));
  ASSERT_EQ(player.quit(), 0);
  start();
  EXPECT_TRUE(showsRows(1, "library-after"));
}

TEST_F(Library, ComesBackWhereAPersonLeftIt) {
  startWith({});
  ASSERT_TRUE(waitFor([this] { return frame().size() == QSize(1100, 720); }));
  screen::run(QStringLiteral("xdotool"),
              {QStringLiteral("windowsize"), id, QStringLiteral("900"), QStringLiteral("520")});
  screen::run(QStringLiteral("xdotool"),
              {QStringLiteral("windowmove"), id, QStringLiteral("100"), QStringLiteral("80")});
  ASSERT_TRUE(waitFor([this] { return frame().size() == QSize(900, 520) && frame().x() < 120; }));
  const QPoint divider = frame().topLeft() + QPoint(230, 300);
  const QRect before = frame();
  screen::dragPointer({divider, divider + QPoint(10, 0), divider + QPoint(50, 0)});
  ASSERT_EQ(player.quit(), 0);
  start();
  EXPECT_TRUE(waitFor([&] { return frame() == before; }))
      << frame().x() << ' ' << frame().y() << ' ' << frame().width() << 'x' << frame().height();
  QFile stored(player.homePath() + QStringLiteral("/config/Tromelo/defaults.json"));
  ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
  EXPECT_EQ(QJsonDocument::fromJson(stored.readAll())[QStringLiteral("librarySidebarWidth")], 280);
}

}  // namespace
}  // namespace tromelo::testing
