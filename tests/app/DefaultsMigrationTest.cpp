#include "app/DefaultsMigration.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace tromelo::testing {

struct DefaultsMigration : ::testing::Test {
  UserDefaults store(const char* name) const { return UserDefaults(directory_.filePath(name)); }

  QTemporaryDir directory_;
};

TEST_F(DefaultsMigration, TakesEachMissingValueFromTheFirstStoreThatHasIt) {
  UserDefaults current = store("current");
  UserDefaults first = store("first");
  UserDefaults second = store("second");
  current.set("playerSettings", "mine");
  first.set("recentFiles", "first");
  first.set("unrelated", "stays");
  for (const char* key : {"recentFiles", "playerSettings", "softwareDecodeFiles"})
    second.set(key, "second");

  migrateDefaultsFromOrvo(current, std::vector{first, second});

  EXPECT_EQ(current.value("recentFiles"), "first");
  EXPECT_EQ(current.value("playerSettings"), "mine");
  EXPECT_EQ(current.value("softwareDecodeFiles"), "second");
  EXPECT_FALSE(current.contains("unrelated"));
}

TEST_F(DefaultsMigration, IsTriedOnceEvenWhenItFoundNothing) {
  UserDefaults current = store("current");
  migrateDefaultsFromOrvo(current, {});
  current.flush();
  UserDefaults late = store("late");
  late.set("recentFiles", "late");

  UserDefaults nextStart = store("current");
  migrateDefaultsFromOrvo(nextStart, std::vector{late});
  EXPECT_FALSE(nextStart.contains("recentFiles"));
}

}  // namespace tromelo::testing
