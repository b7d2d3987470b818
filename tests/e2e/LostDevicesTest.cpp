#include <QElapsedTimer>

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

}  // namespace tromelo::testing
