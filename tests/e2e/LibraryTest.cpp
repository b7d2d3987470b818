#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

TEST_F(EndToEnd, TheLibraryComesBackWhereAPersonLeftIt) {
  if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host places windows itself";
  const auto frame = [this] { return screen::geometryOf(window("Tromelo")); };
  player.start();
  ASSERT_TRUE(player.waitUntil([&] { return frame().size() == QSize(1100, 720); }));
  const QString id = window("Tromelo");
  screen::run("xdotool", {"windowsize", id, "900", "520"});
  screen::run("xdotool", {"windowmove", id, "100", "80"});
  ASSERT_TRUE(
      player.waitUntil([&] { return frame().size() == QSize(900, 520) && frame().x() < 120; }));
  const QRect before = frame();
  ASSERT_EQ(player.quit(), 0);
  player.start();
  EXPECT_TRUE(player.waitUntil([&] { return frame() == before; }));
}

}  // namespace
}  // namespace tromelo::testing
