#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

// From the right end of the control bar's upper row to the middle of a button.
constexpr int kFullscreenButton = 14;
constexpr int kInfoButton = 50;
constexpr int kTracksButton = 122;

/// A person's pointer on the panels, on X11.
class Panels : public EndToEnd {
 protected:
  void SetUp() override {
    if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host has no pointer";
  }

  void start(const QStringList& clips, const char* title) {
    screen::movePointer({5, 700});
    player.start(clips);
    ASSERT_TRUE(player.waitUntilPlaying());
    ASSERT_TRUE(waitFor([&] {
      id = window(title);
      return !id.isEmpty() && isActive(title);
    }));
    probe().set("pause", true);
    ASSERT_TRUE(player.waitFor("status", "Paused"));
    screen::run("xdotool", {"windowsize", id, "1120", "700"});
    ASSERT_TRUE(waitFor([&] { return frame().width() > 1000; }))
        << id.toStdString() << " " << frame().width();
    screen::run("xdotool", {"windowmove", id, "60", "40"});
    ASSERT_TRUE(waitFor([&] { return frame().x() == 60; }));
    const QRect last(button(kFullscreenButton) - QPoint(10, 10), QSize(21, 21));
    screen::movePointer(last.center());
    // The bar has followed the window.
    ASSERT_TRUE(screen::waitForShot(
        "panel-bar", [&](const QImage& image) { return screen::isRead(image, last); }));
  }

  QRect frame() { return screen::geometryOf(id); }
  QRect bar() {
    const QRect window = frame();
    return {window.center().x() - 380, window.y() + window.height() - 22 - 86, 760, 86};
  }
  QPoint button(int fromRight) {
    return {bar().x() + bar().width() - 18 - fromRight, bar().y() + 30};
  }

  QString id;
};

TEST_F(Panels, AreReadOverAnyPicture) {
  for (const char* clipName : {"white.mp4", "black.mp4"})
    for (const char* rendering : {"glass", "material"}) {
      SCOPED_TRACE(std::string(clipName) + " " + rendering);
      player.environment.insert("TROMELO_GLASS", rendering);
      const QByteArray title = QByteArray(clipName).first(5);
      ASSERT_NO_FATAL_FAILURE(start({clip(clipName)}, title.constData()));
      const QString shot = QString::fromLatin1(title + '-' + rendering);
      screen::click(button(kInfoButton));
      const QRect controls = bar();
      const QRect info(frame().topRight() + QPoint(-328, 70), QSize(290, 60));
      EXPECT_TRUE(screen::waitForShot(QString("bar-") + shot, [&](const QImage& image) {
        return screen::isRead(image, controls) && screen::isRead(image, info);
      }));
      screen::click(button(kTracksButton));
      const QRect rows(button(kTracksButton).x() - 150, controls.top() - 340, 300, 100);
      EXPECT_TRUE(screen::waitForShot(QString("tracks-") + shot, [&](const QImage& image) {
        return screen::isRead(image, rows);
      }));
      ASSERT_EQ(player.quit(), 0);
    }
}

}  // namespace
}  // namespace tromelo::testing
