#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

TEST_F(EndToEnd, PanelsAreReadOverAnyPicture) {
  if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host has no keys";
  screen::movePointer({5, 700});
  for (const QString title : {"white", "black"})
    for (const char* rendering : {"glass", "material"}) {
      const QString shot = title + '-' + rendering;
      SCOPED_TRACE(shot.toStdString());
      player.environment.insert("TROMELO_GLASS", rendering);
      player.start({clip(title + ".mp4")});
      ASSERT_TRUE(player.waitUntilPlaying());
      ASSERT_TRUE(player.waitUntil([&] { return isActive(title); }));
      probe().set("fullscreen", true);
      ASSERT_TRUE(player.waitFor("fullscreen", "yes"));
      probe().set("pause", true);
      ASSERT_TRUE(player.waitFor("status", "Paused"));
      screen::press("i");
      const QRect whole = screen::shot().rect();
      const QRect bar(whole.center().x() - 380, whole.bottom() - 107, 760, 86);
      const QRect info(whole.topRight() + QPoint(-328, 70), QSize(290, 60));
      EXPECT_TRUE(screen::waitForShot("bar-" + shot, [&](const QImage& image) {
        return screen::isRead(image, bar) && screen::isRead(image, info);
      }));
      screen::press("u");
      const QRect tracks(bar.right() - 290, bar.top() - 340, 300, 100);
      EXPECT_TRUE(screen::waitForShot(
          "tracks-" + shot, [&](const QImage& image) { return screen::isRead(image, tracks); }));
      ASSERT_EQ(player.quit(), 0);
    }
}

}  // namespace
}  // namespace tromelo::testing
