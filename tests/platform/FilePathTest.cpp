#include "platform/FilePath.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/LocalFiles.h"
#include "platform/NumberText.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST(FilePath, KeepsEveryByteOfAPathThroughAUrl) {
  const std::string paths[] = {"/a/plain.mkv",
                               "/with space/per%20cent%.mkv",
                               "/new\nline.mkv",
                               "/quote'\".mkv",
                               "/comma,semi;hash#?.x",
                               "/bad\xff\xfe utf8.mkv",
                               "/\xe2\x82\xac.mkv",
                               "/a/b/../c/",
                               "/" + std::string(3990, 'x')};
  for (const std::string& path : paths) {
    const QUrl url = fileUrlFromPath(path);
    EXPECT_TRUE(url.isValid() && url.isLocalFile()) << path;
    EXPECT_EQ(pathFromFileUrl(url), path);
  }
}

TEST(FilePath, IsAbsoluteFromTheWorkingDirectory) {
  EXPECT_EQ(pathFromFileUrl(fileUrlFromPath("movie.mkv")),
            (std::filesystem::current_path() / "movie.mkv").string());
  EXPECT_EQ(fileUrlFromPath("./movie.mkv"), fileUrlFromPath("movie.mkv"));
  EXPECT_EQ(absolutePath("/a//./b/.x"), "/a/b/.x");
}

TEST(FilePath, GivesNothingForWhatIsNoLocalFile) {
  EXPECT_EQ(pathFromFileUrl(QUrl("https://example.org/movie.mkv")), "");
  EXPECT_EQ(fileUrlFromPath(""), QUrl());
}

TEST(FilePath, OfAnAddressIsWhatTheDesktopKnows) {
  EXPECT_EQ(mountedPath(QUrl("file:///a%20b")), "/a b");
  EXPECT_EQ(mountedPath(QUrl("no-such-scheme://nas/a")), "");
}

TEST(FilePath, ShortensNamesForPeople) {
  for (const auto& [path, name, withoutExtension] : Table<const char*, const char*, const char*>{
           {"/films/Movie.mkv", "Movie.mkv", "Movie"},
           {"/films/My.Film.2020.mkv", "My.Film.2020.mkv", "My.Film.2020"},
           {"/films/.hidden", ".hidden", ".hidden"},
           {"/films/ends.", "ends.", "ends."},
           {"/films/no extension", "no extension", "no extension"},
           {"/films/Episode 1. The start", "Episode 1. The start", "Episode 1. The start"},
           {"/films/folder/", "folder", "folder"},
       }) {
    const QUrl url = fileUrlFromPath(path);
    EXPECT_EQ(lastPathComponent(url), name) << path;
    EXPECT_EQ(lastPathComponentWithoutExtension(url), withoutExtension) << path;
  }
}

TEST(NumberText, IsTheShortestThatReadsBackAndAlwaysAFloat) {
  const std::pair<double, const char*> rows[] = {
      {1, "1.0"},     {0.25, "0.25"},   {90, "90.0"},    {12.5, "12.5"},
      {-0.1, "-0.1"}, {0.123, "0.123"}, {1e21, "1e+21"}, {100.0 / 3, "33.333333333333336"}};
  for (const auto& [value, text] : rows) EXPECT_EQ(numberText(value), text);
}

}  // namespace tromelo::testing
