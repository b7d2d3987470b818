#include "EndToEnd.h"
#include "support/BusDaemon.h"

namespace tromelo::testing {
namespace {

TEST_F(EndToEnd, ASecondStartHandsItsFileToTheFirst) {
  const BusDaemon bus;
  ASSERT_FALSE(bus.address().isEmpty());
  RunningPlayer second;
  for (RunningPlayer* each : {&player, &second})
    each->environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
  player.start();
  ASSERT_TRUE(player.waitFor("status", "Open a video to begin"));

  second.start({clip("sample.mp4"), "--start=3"});
  EXPECT_EQ(second.waitForEnd(), 0);
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.said("title"), "sample");
  EXPECT_GE(player.said("position").toDouble(), 3);

  probe().set("fullscreen", true);
  ASSERT_TRUE(player.waitFor("fullscreen", "yes"));
  RunningPlayer third;
  third.environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
  third.start({clip("white.mp4")});
  EXPECT_EQ(third.waitForEnd(), 0);
  ASSERT_TRUE(player.waitFor("title", "white"));
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.said("fullscreen"), "yes");
  EXPECT_EQ(player.quit(), 0);
}

}  // namespace
}  // namespace tromelo::testing
