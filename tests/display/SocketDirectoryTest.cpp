#include "display/SocketDirectory.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tromelo::testing {

class SocketDirectoryTest : public ::testing::Test {
 protected:
  QByteArray parent() const { return QFile::encodeName(parent_.path()); }
  QStringList entries() const {
    return QDir(parent_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
  }
  QTemporaryDir parent_;
};

TEST_F(SocketDirectoryTest, OnlyThisUserCanEnterAndNothingIsLeft) {
  auto directory = SocketDirectory::createBelow(parent());
  ASSERT_TRUE(directory);
  struct stat status{};
  ASSERT_EQ(stat(directory->path().constData(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700u);
  EXPECT_TRUE(directory->socketPath().startsWith(directory->path() + '/'));
  directory.reset();
  EXPECT_EQ(entries(), QStringList());
}

TEST_F(SocketDirectoryTest, WhatACrashLeftIsRemovedAndWhatLivesIsNot) {
  const auto living = SocketDirectory::createBelow(parent());
  const pid_t child = fork();
  if (child == 0) {
    SocketDirectory::createBelow(parent()).release();
    _exit(0);
  }
  ASSERT_EQ(waitpid(child, nullptr, 0), child);
  QFile unrelated(parent_.filePath("tromelo-display-notes"));
  ASSERT_TRUE(unrelated.open(QIODevice::WriteOnly));
  ASSERT_EQ(entries().size(), 3);

  const auto next = SocketDirectory::createBelow(parent());
  ASSERT_TRUE(next);
  EXPECT_EQ(entries().size(), 3);
  EXPECT_TRUE(QFile::exists(QFile::decodeName(living->socketPath())));
  EXPECT_TRUE(unrelated.exists());
}

TEST_F(SocketDirectoryTest, PlacesThatWontDo) {
  const QByteArray deep = parent() + '/' + QByteArray(100, 'x');
  ASSERT_TRUE(QDir().mkpath(QFile::decodeName(deep)));
  const std::pair<const char*, QByteArray> places[] = {{"unset", ""},
                                                       {"relative", "run"},
                                                       {"missing", parent() + "/none"},
                                                       {"too long for a socket", deep}};
  for (const auto& [name, place] : places)
    EXPECT_FALSE(SocketDirectory::createBelow(place)) << name;
  EXPECT_TRUE(QDir(QFile::decodeName(deep)).isEmpty());
}

TEST_F(SocketDirectoryTest, FallsBackWhenTheRuntimeDirectoryWontDo) {
  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", "/nonexistent");
  QString error;
  EXPECT_TRUE(SocketDirectory::create(&error)) << error.toStdString();
  qputenv("XDG_RUNTIME_DIR", before);
}

}  // namespace tromelo::testing
