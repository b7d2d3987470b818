#include "EndToEnd.h"
#include "SoundServer.h"
#include "support/Table.h"

namespace tromelo::testing {

/// The program with a graphics driver that fails.
struct LostDevices : EndToEnd {
  void failAt(const char* fault) {
    player.environment.insert("VK_LAYER_PATH", TROMELO_VULKAN_LAYERS);
    player.environment.insert("VK_INSTANCE_LAYERS", "VK_LAYER_TROMELO_faulty");
    player.environment.insert("VULKAN_FAULT", fault);
  }
};

TEST_F(LostDevices, AFilmGoesOnWhereItsDriverFailed) {
  for (const auto& [what, fault] :
       Table<const char*, const char*>{{"lost", "present 40 lost"},
                                       {"lost while it drew", "submit 150 lost"},
                                       {"out of date", "present 40 outdated"},
                                       {"out of memory", "memory 60 memory"},
                                       {"hanging", "present 40 hang"}}) {
    SCOPED_TRACE(what);
    failAt(fault);
    player.start({clip("sample.mp4")});
    ASSERT_TRUE(player.waitUntilPlaying());
    // The fault comes before the fourth second.
    EXPECT_TRUE(player.waitUntil([&] { return player.said("position").toDouble() > 4; }));
    EXPECT_TRUE(player.isRevealed());
    EXPECT_TRUE(screen::waitForShot(QString("after-") + what, showsTestPicture));
    EXPECT_EQ(player.quit(), 0);
    EXPECT_EQ(player.runtimeFiles(), QStringList());
  }
}

struct LostSound : EndToEnd {
  LostSound() { sound.start(); }

  [[nodiscard]] bool goesOn() {
    const double from = player.said("position").toDouble();
    return player.waitUntil([&] { return player.said("position").toDouble() > from + 1; });
  }

  SoundServer sound{player};
};

TEST_F(LostSound, AFilmGoesOnAndIsHeardAgain) {
  player.start({clip("long.mkv")});
  ASSERT_TRUE(player.waitUntilPlaying());
  ASSERT_TRUE(probe().waitFor("current-ao", "pipewire"));

  sound.unplug();
  EXPECT_TRUE(goesOn());
  EXPECT_TRUE(probe().waitFor("current-ao", "null"));
  sound.plugIn();
  EXPECT_TRUE(probe().waitFor("current-ao", "pipewire"));
  EXPECT_TRUE(goesOn());

  sound.kill();
  EXPECT_TRUE(probe().waitFor("current-ao", QJsonValue(QJsonValue::Undefined)));
  EXPECT_TRUE(goesOn());
  sound.start();
  EXPECT_TRUE(probe().waitFor("current-ao", "pipewire"));
  EXPECT_TRUE(goesOn());
  EXPECT_TRUE(player.isRevealed());
  EXPECT_EQ(player.quit(), 0);
}

struct LostScreen : EndToEnd {
  LostScreen() {
    player.start({clip("sample.mp4")});
    EXPECT_TRUE(player.waitUntilPlaying());
    EXPECT_TRUE(player.waitUntil([this] { return isActive("sample"); }));
    probe().set("loop-file", "inf");
  }
  // On the screens that are there.
  [[nodiscard]] bool goesOn(const QString& name) {
    const QString position = player.said("position");
    return player.waitUntil([&] { return player.said("position") != position; }) &&
           screen::waitForShot("screen-" + name, showsTestPicture);
  }
};

TEST_F(LostScreen, AFilmIsThereAgainWhenTheOnlyOneIs) {
  screen::press("f");
  EXPECT_TRUE(player.waitFor("fullscreen", "yes"));
  screen::unplug(1);
  screen::plugIn(1);
  EXPECT_TRUE(goesOn("back"));
  EXPECT_EQ(player.quit(), 0);
}

TEST_F(LostScreen, AFilmGoesOnOnAnother) {
  if (screen::isX11()) GTEST_SKIP() << "Xvfb has one";
  screen::plugIn(2);
  screen::unplug(1);
  EXPECT_TRUE(goesOn("second"));
  screen::press("f");
  EXPECT_TRUE(player.waitFor("fullscreen", "yes"));
  EXPECT_TRUE(goesOn("full"));
  screen::plugIn(1);
  screen::unplug(2);
  EXPECT_TRUE(goesOn("full-first"));
  EXPECT_EQ(player.quit(), 0);
}

}  // namespace tromelo::testing
