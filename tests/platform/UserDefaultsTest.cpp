#include "platform/UserDefaults.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <thread>

#include "support/WaitFor.h"

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

/// No file grows above so many bytes, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    ::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  sighandler_t handler_ = SIG_DFL;
};

TEST_F(UserDefaultsTest, TheLastOfManyQuickChangesIsOnDisk) {
  UserDefaults defaults(path());
  for (int i = 1; i <= 500; ++i) {
    defaults.set(QStringLiteral("size"), i);
    ASSERT_EQ(defaults.value(QStringLiteral("size")), QJsonValue(i));
  }
  ASSERT_TRUE(testing::waitFor([this] {  // without being asked to
    return QFile::exists(path()) &&
           UserDefaults(path()).value(QStringLiteral("size")) == QJsonValue(500);
  }));
  defaults.set(QStringLiteral("size"), 501);
  defaults.flush();
  EXPECT_EQ(UserDefaults(path()).value(QStringLiteral("size")), QJsonValue(501));
}

TEST_F(UserDefaultsTest, ProgramsThatWriteAtOnceLoseNothingOfEachOthers) {
  const auto program = [this](const QString& name) {
    UserDefaults defaults(path());
    for (int i = 0; i < 20; ++i) {
      defaults.set(name + QString::number(i), i);
      defaults.flush();
    }
  };
  std::thread other(program, QStringLiteral("other"));
  program(QStringLiteral("own"));
  other.join();
  EXPECT_EQ(UserDefaults(path()).all().size(), 40);
}

TEST_F(UserDefaultsTest, SetsADamagedFileAsideAndGoesOn) {
  for (const char* damaged : {"{\"a\": 1", "[1, 2]", "\xff\xfe nonsense", ""}) {
    write(damaged);
    UserDefaults defaults(path());
    EXPECT_TRUE(defaults.all().isEmpty());
    EXPECT_TRUE(defaults.error().contains(QStringLiteral("damaged"))) << damaged;
    defaults.set(QStringLiteral("a"), 2);
    defaults.flush();
    EXPECT_EQ(UserDefaults(path()).value(QStringLiteral("a")), QJsonValue(2));
  }
  EXPECT_EQ(filesNextToIt().filter(QStringLiteral("damaged")).size(), 4);
}

TEST_F(UserDefaultsTest, KeepsTheValueInMemoryWhenItCannotBeWrittenAndSaysSoOnce) {
  QFile inTheFoldersPlace(directory_.filePath(QStringLiteral("store")));
  ASSERT_TRUE(inTheFoldersPlace.open(QIODevice::WriteOnly));
  UserDefaults defaults(path());
  QStringList told;
  defaults.onError([&](const QString& sentence) { told << sentence; });
  for (int i = 0; i < 3; ++i) {
    defaults.set(QStringLiteral("a"), i);
    defaults.flush();
  }
  testing::settle();
  EXPECT_EQ(defaults.value(QStringLiteral("a")), QJsonValue(2));
  ASSERT_EQ(told.size(), 1);
  EXPECT_TRUE(told[0].contains(QStringLiteral("can't be saved"))) << qPrintable(told[0]);
}

TEST_F(UserDefaultsTest, AFullDiskLosesNothing) {
  UserDefaults defaults(path());
  defaults.set(QStringLiteral("a"), 1);
  defaults.flush();
  {
    const FullDisk full(16);
    defaults.set(QStringLiteral("long"), QString(100, u'x'));
    defaults.flush();
    EXPECT_TRUE(defaults.error().contains(QStringLiteral("can't be saved")));
    EXPECT_EQ(UserDefaults(path()).all(), (QJsonObject{{"a", 1}}));
  }
  defaults.set(QStringLiteral("b"), 2);
  defaults.flush();
  EXPECT_EQ(UserDefaults(path()).all(), defaults.all());  // and there is room again
  EXPECT_EQ(defaults.all().size(), 3);
}

}  // namespace
}  // namespace tromelo
