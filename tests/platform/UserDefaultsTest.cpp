#include "platform/UserDefaults.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tromelo {
namespace {

class UserDefaultsTest : public ::testing::Test {
 protected:
  QString path() const { return directory_.filePath(QStringLiteral("store/defaults.json")); }

  void write(const QByteArray& text) {
    QDir(directory_.path()).mkpath(QStringLiteral("store"));
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }

  QStringList filesNextToIt() const {
    return QDir(directory_.filePath(QStringLiteral("store"))).entryList(QDir::Files);
  }

  QTemporaryDir directory_;
};

TEST_F(UserDefaultsTest, KeepsValuesForTheNextStart) {
  UserDefaults(path()).set(QStringLiteral("answer"), 42);
  EXPECT_EQ(UserDefaults(path()).value(QStringLiteral("answer")), QJsonValue(42));
  EXPECT_FALSE(UserDefaults(path()).contains(QStringLiteral("other")));
}

TEST_F(UserDefaultsTest, MergesWhatAnotherProcessWrote) {
  UserDefaults first(path());
  UserDefaults second(path());
  first.set(QStringLiteral("a"), 1);
  second.set(QStringLiteral("b"), 2);
  const UserDefaults stored(path());
  EXPECT_EQ(stored.value(QStringLiteral("a")), QJsonValue(1));
  EXPECT_EQ(stored.value(QStringLiteral("b")), QJsonValue(2));
}

TEST_F(UserDefaultsTest, SetsADamagedFileAsideAndGoesOn) {
  for (const char* damaged : {"{\"a\": 1", "[1, 2]", "\xff\xfe nonsense", ""}) {
    write(damaged);
    UserDefaults defaults(path());
    EXPECT_TRUE(defaults.all().isEmpty());
    defaults.set(QStringLiteral("a"), 2);
    EXPECT_EQ(UserDefaults(path()).value(QStringLiteral("a")), QJsonValue(2));
  }
  EXPECT_EQ(filesNextToIt().filter(QStringLiteral("damaged")).size(), 4);
}

TEST_F(UserDefaultsTest, KeepsTheValueInMemoryWhenItCannotBeWritten) {
  QDir(directory_.path())
      .mkpath(QStringLiteral("store/defaults.json"));  // a directory in its place
  UserDefaults defaults(path());
  defaults.set(QStringLiteral("a"), 1);
  EXPECT_EQ(defaults.value(QStringLiteral("a")), QJsonValue(1));
  EXPECT_FALSE(defaults.lastError().isEmpty());
}

}  // namespace
}  // namespace tromelo
