#include "platform/FolderVideos.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <filesystem>

#include "platform/FilePath.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST(FolderVideos, ComeAsAPersonCountsThem) {
  using Names = std::vector<std::string>;
  for (const auto& [name, folder, here, behind] : Table<const char*, Names, const char*, Names>{
           {"numbers", {"e10.mkv", "e2.mkv", "e1.mkv"}, "e1.mkv", {"e2.mkv", "e10.mkv"}},
           {"several",
            {"S2E1.mkv", "S1E10.mkv", "S1E9.mkv"},
            "S1E9.mkv",
            {"S1E10.mkv", "S2E1.mkv"}},
           {"capitals", {"B.mp4", "a.mp4", "C.MP4"}, "a.mp4", {"B.mp4", "C.MP4"}},
           {"the last", {"a.mkv", "b.mkv"}, "b.mkv", {}},
           {"one that is gone", {"a.mkv", "c.mkv"}, "b.mkv", {"c.mkv"}},
           {"no videos", {"a.mkv", "b.srt", "c.txt", "d", "e.m3u8", ".f.mkv"}, "a.mkv", {}},
           {"no names", {"a.mkv", "b\xff.mkv"}, "a.mkv", {"b\xff.mkv"}},
           {"no files", {"a.mkv", "b.mkv/c.mkv"}, "a.mkv", {}},
       }) {
    const QTemporaryDir directory;
    const std::string root = directory.path().toStdString() + '/';
    for (const std::string& file : folder) writeFile(root + file, "");
    ASSERT_EQ(symlink("/no/such/film", (root + "z.mkv").c_str()), 0);
    Names found;
    for (const QUrl& file : videosBehind(root + here))
      found.push_back(pathFromFileUrl(file).substr(root.size()));
    EXPECT_EQ(found, behind) << name;
    std::filesystem::remove_all(root);  // which Qt can't, of names that aren't UTF-8
  }
  EXPECT_TRUE(videosBehind("/no/such/folder/a.mkv").isEmpty());
}

}  // namespace tromelo::testing
