#include "app/DefaultsMigration.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace tromelo {
namespace {

class DefaultsMigration : public ::testing::Test {
 protected:
  UserDefaults store(const char* name) const {
    return UserDefaults(directory_.filePath(QString::fromLatin1(name)));
  }

  static QString text(const UserDefaults& defaults, const char* key) {
    return defaults.value(QString::fromLatin1(key)).toString();
  }

  QTemporaryDir directory_;
};

TEST_F(DefaultsMigration, TakesEachMissingValueFromTheFirstStoreThatHasIt) {
  UserDefaults current = store("current");
  UserDefaults first = store("first");
  UserDefaults second = store("second");
  current.set(QStringLiteral("playerSettings"), QStringLiteral("mine"));
  first.set(QStringLiteral("recentFiles"), QStringLiteral("first"));
  first.set(QStringLiteral("unrelated"), QStringLiteral("stays"));
  for (const char* key : {"recentFiles", "playerSettings", "softwareDecodeFiles"})
    second.set(QString::fromLatin1(key), QStringLiteral("second"));

  migrateDefaultsFromOrvo(current, std::vector{first, second});

  EXPECT_EQ(text(current, "recentFiles"), QStringLiteral("first"));
  EXPECT_EQ(text(current, "playerSettings"), QStringLiteral("mine"));
  EXPECT_EQ(text(current, "softwareDecodeFiles"), QStringLiteral("second"));
  EXPECT_FALSE(current.contains(QStringLiteral("unrelated")));
}

TEST_F(DefaultsMigration, IsTriedOnceEvenWhenItFoundNothing) {
  UserDefaults current = store("current");
  migrateDefaultsFromOrvo(current, {});
  current.flush();
  UserDefaults late = store("late");
  late.set(QStringLiteral("recentFiles"), QStringLiteral("late"));

  UserDefaults nextStart = store("current");
  migrateDefaultsFromOrvo(nextStart, std::vector{late});
  EXPECT_FALSE(nextStart.contains(QStringLiteral("recentFiles")));
}

}  // namespace
}  // namespace tromelo
