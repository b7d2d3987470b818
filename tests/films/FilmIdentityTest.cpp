#include "films/FilmIdentity.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <filesystem>
#include <string>

#include "support/Files.h"

namespace tromelo::testing {

namespace fs = std::filesystem;

/// Bytes that don't repeat, so that a part which is read at the wrong place shows.
std::string filmOf(std::size_t size) {
  std::string content(size, '\0');
  for (std::size_t i = 0; i < size; ++i) content[i] = static_cast<char>((i * 2654435761U) >> 13);
  return content;
}

TEST(FilmIdentity, IsKeptByAnotherNameAndLostByAnotherContent) {
  constexpr std::size_t kEnd = 64 * 1024;
  for (const std::size_t size :
       {std::size_t{1}, kEnd - 1, kEnd, kEnd + 1, 2 * kEnd, 2 * kEnd + 1, 10 * kEnd}) {
    SCOPED_TRACE(size);
    const QTemporaryDir home;
    const fs::path folder = home.path().toStdString();
    const fs::path film = folder / "film.mkv";
    std::string content = filmOf(size);
    writeFile(film.string(), content);
    const auto known = filmIdentity(film.string());
    ASSERT_TRUE(known);

    fs::copy_file(film, folder / "copy.mkv");
    EXPECT_EQ(filmIdentity((folder / "copy.mkv").string()), known);
    fs::create_hard_link(film, folder / "link.mkv");
    EXPECT_EQ(filmIdentity((folder / "link.mkv").string()), known);
    fs::rename(film, folder / "renamed.mkv");
    EXPECT_EQ(filmIdentity((folder / "renamed.mkv").string()), known);

    writeFile(film.string(), content + 'x');
    EXPECT_NE(filmIdentity(film.string()), known) << "appended";
    writeFile(film.string(), content.substr(0, size - 1));
    EXPECT_NE(filmIdentity(film.string()), known) << "truncated";
    for (const std::size_t at : {std::size_t{0}, size - 1}) {
      std::string edited = content;
      edited[at] = static_cast<char>(edited[at] + 1);
      writeFile(film.string(), edited);
      EXPECT_NE(filmIdentity(film.string()), known) << "edited at " << at;
    }
  }
}

TEST(FilmIdentity, IsThatOfASparseFileWithoutReadingIt) {
  const QTemporaryDir home;
  const std::string film = home.filePath(QStringLiteral("film.mkv")).toStdString();
  writeFile(film, filmOf(1000));
  fs::resize_file(film, std::uintmax_t{1} << 42);
  EXPECT_TRUE(filmIdentity(film));
}

TEST(FilmIdentity, IsNoneOfWhatIsNoFilm) {
  const QTemporaryDir home;
  const std::string folder = home.path().toStdString();
  writeFile(folder + "/empty.mkv");
  ASSERT_EQ(mkfifo((folder + "/pipe.mkv").c_str(), 0600), 0);
  for (const char* name : {"/empty.mkv", "/pipe.mkv", "/missing.mkv", ""})
    EXPECT_FALSE(filmIdentity(folder + name)) << name;
}

}  // namespace tromelo::testing
