#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

TEST_F(EndToEnd, PlaysSoundWithoutAPictureFromTheLibraryAfterAFileThatCannotBePlayed) {
  player.start();
  EngineProbe engine = probe();
  engine.set("ao", "null");  // the machine may have no sound
  engine.command({"loadfile", clip("text.mkv")});
  ASSERT_TRUE(
      player.waitUntil([&] { return player.said("status").startsWith(u"Could not play "); }));
  engine.command({"loadfile", clip("audio.m4a")});
  engine.set("pause", false);
  ASSERT_TRUE(player.waitFor("status", "Playing"));
  EXPECT_EQ(player.said("window"), "none");
  if (!screen::isX11()) return;
  ASSERT_TRUE(player.waitUntil([&] { return isActive("^Tromelo$"); }));
  screen::press("Escape");
  ASSERT_TRUE(player.waitFor("status", "Ready for a video"));
}

}  // namespace
}  // namespace tromelo::testing
