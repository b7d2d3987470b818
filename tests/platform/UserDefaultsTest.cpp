#include "platform/UserDefaults.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <thread>

#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

struct UserDefaultsTest : ::testing::Test {
  QString path() const { return directory_.filePath("store/defaults.json"); }

  QTemporaryDir directory_;
};

TEST_F(UserDefaultsTest, TheLastOfManyQuickChangesIsOnDisk) {
  UserDefaults defaults(path());
  for (int i = 1; i <= 500; ++i) {
    defaults.set("size", i);
    ASSERT_EQ(defaults.value("size"), QJsonValue(i));
  }
  ASSERT_TRUE(waitFor([this] {  // without being asked to
    return QFile::exists(path()) && UserDefaults(path()).value("size") == QJsonValue(500);
  }));
  defaults.set("size", 501);
  defaults.flush();
  EXPECT_EQ(UserDefaults(path()).value("size"), QJsonValue(501));
}

TEST_F(UserDefaultsTest, ProgramsThatWriteAtOnceLoseNothingOfEachOthers) {
  const auto program = [this](const QString& name) {
    UserDefaults defaults(path());
    for (int i = 0; i < 20; ++i) {
      defaults.set(name + QString::number(i), i);
      defaults.flush();
    }
  };
  std::thread other(program, "other");
  program("own");
  other.join();
  EXPECT_EQ(UserDefaults(path()).all().size(), 40);
}

TEST_F(UserDefaultsTest, SetsADamagedFileAsideAndGoesOn) {
  for (const char* damaged : {"{\"a\": 1", "[1, 2]", "\xff\xfe nonsense", ""}) {
    writeFile(path(), damaged);
    UserDefaults defaults(path());
    EXPECT_TRUE(defaults.all().isEmpty());
    EXPECT_TRUE(defaults.error().contains("damaged")) << damaged;
    defaults.set("a", 2);
    defaults.flush();
    EXPECT_EQ(UserDefaults(path()).value("a"), QJsonValue(2));
  }
  EXPECT_EQ(QDir(directory_.filePath("store")).entryList({"*damaged*"}).size(), 4);
}

TEST_F(UserDefaultsTest, KeepsTheValueInMemoryWhenItCannotBeWrittenAndSaysSoOnce) {
  writeFile(directory_.filePath("store"));  // in the folder's place
  UserDefaults defaults(path());
  QStringList told;
  defaults.onError([&](const QString& sentence) { told << sentence; });
  for (int i = 0; i < 3; ++i) {
    defaults.set("a", i);
    defaults.flush();
  }
  settle();
  EXPECT_EQ(defaults.value("a"), QJsonValue(2));
  ASSERT_EQ(told.size(), 1);
  EXPECT_TRUE(told[0].contains("can't be saved")) << qPrintable(told[0]);
}

TEST_F(UserDefaultsTest, AFullDiskLosesNothing) {
  UserDefaults defaults(path());
  defaults.set("a", 1);
  defaults.flush();
  {
    const FullDisk full(16);
    defaults.set("long", QString(100, u'x'));
    defaults.flush();
    EXPECT_TRUE(defaults.error().contains("can't be saved"));
    EXPECT_EQ(UserDefaults(path()).all(), (QJsonObject{{"a", 1}}));
  }
  defaults.set("b", 2);
  defaults.flush();
  EXPECT_EQ(UserDefaults(path()).all(), defaults.all());  // and there is room again
  EXPECT_EQ(defaults.all().size(), 3);
}

}  // namespace tromelo::testing
