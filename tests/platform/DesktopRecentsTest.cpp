#include "platform/DesktopRecents.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/FilePath.h"
#include "support/Files.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

struct DesktopRecents : ::testing::Test {
  QByteArray list() const { return QFile::encodeName(directory_.filePath("recently-used.xbel")); }
  QByteArray text() const { return readFile(list()); }

  QTemporaryDir directory_;
};

TEST_F(DesktopRecents, AddsAFileToWhatIsThereAndRemovesIt) {
  EXPECT_TRUE(addToRecentsList(list(), fileUrlFromPath("/films/One & two.mkv")));
  EXPECT_TRUE(addToRecentsList(list(), fileUrlFromPath("/films/\xff.mp4")));
  EXPECT_TRUE(addToRecentsList(list(), fileUrlFromPath("/films/\xff.mp4")));
  EXPECT_EQ(text().count("<bookmark href"), 2);
  for (const char* part : {"file:///films/One%20%26%20two.mkv", "file:///films/%FF.mp4",
                           "type=\"video/mp4\"", "name=\"Tromelo\""})
    EXPECT_TRUE(text().contains(part)) << part << " in " << text().toStdString();
  for (int i = 0; i < 2; ++i)
    EXPECT_TRUE(removeFromRecentsList(list(), fileUrlFromPath("/films/\xff.mp4")));
  EXPECT_EQ(text().count("<bookmark href"), 1);
}

TEST_F(DesktopRecents, FollowsThePersonInOrder) {
  const QString path = qEnvironmentVariable("XDG_DATA_HOME") + "/recently-used.xbel";
  const auto has = [&path](const char* name) { return readFile(path).contains(name); };
  const QUrl kept = fileUrlFromPath("/films/kept.mkv");
  const QUrl gone = fileUrlFromPath("/films/gone.mkv");
  for (int i = 0; i < 20; ++i) {
    addToDesktopRecents(gone);
    removeFromDesktopRecents(gone);
  }
  addToDesktopRecents(kept);
  EXPECT_TRUE(waitFor([&] { return has("kept"); }));
  EXPECT_FALSE(has("gone"));
}

TEST_F(DesktopRecents, LeavesADamagedListAlone) {
  writeFile(list().toStdString(), "no list");
  EXPECT_FALSE(addToRecentsList(list(), fileUrlFromPath("/a.mkv")));
  EXPECT_FALSE(removeFromRecentsList(list(), fileUrlFromPath("/a.mkv")));
  EXPECT_EQ(text(), "no list");
}

}  // namespace tromelo::testing
