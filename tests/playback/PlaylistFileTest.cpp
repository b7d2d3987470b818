#include "playback/PlaylistFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <filesystem>

#include "platform/FilePath.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

using Skipped = OpenedLists::Skipped;
using Reason = Skipped::Reason;

/// A folder with films and lists.
struct PlaylistFile : ::testing::Test {
  std::string path(const std::string& name) const {
    return directory_.path().toStdString() + '/' + name;
  }
  void write(const std::string& name, const QByteArray& text) const {
    writeFile(path(name), text.toStdString());
  }
  OpenedLists opened(const std::string& name) const {
    return openLists({fileUrlFromPath(path(name))});
  }
  /// Paths from the folder on.
  std::vector<std::string> found(const OpenedLists& lists) const {
    std::vector<std::string> names;
    for (const QUrl& file : lists.files)
      names.push_back(pathFromFileUrl(file).substr(path("").size()));
    return names;
  }

  // Qt can't, of names that aren't UTF-8.
  ~PlaylistFile() override { std::filesystem::remove_all(path("")); }

  QTemporaryDir directory_;
};

TEST_F(PlaylistFile, NamesWhatIsThereHoweverItIsWritten) {
  for (const char* name : {"a.mkv", "sub/ä b.mkv", "#1.mkv", "é.mkv", "\xe9.mkv"}) write(name, "");
  write("inner.m3u8", "a.mkv\n../gone.mkv\ninner.m3u8\nlist.m3u\n");
  const QByteArray folder = directory_.path().toUtf8();
  const QByteArray address = QUrl::fromLocalFile(directory_.path()).toEncoded();
  using Names = std::vector<std::string>;
  for (const auto& [name, text, files, skipped] :
       Table<const char*, QByteArray, Names, QList<Skipped>>{
           {"nothing", "", {}, {}},
           {"remarks", "#EXTM3U\n#EXTINF:-1,A film\n\n \na.mkv", {"a.mkv"}, {}},
           {"a mark and carriage returns",
            "\xef\xbb\xbf"
            "a.mkv\r\na.mkv\r\n",
            {"a.mkv", "a.mkv"},
            {}},
           {"UTF-8", "sub/ä b.mkv\né.mkv", {"sub/ä b.mkv", "é.mkv"}, {}},
           {"Latin-1", "sub/\xe4 b.mkv", {"sub/ä b.mkv"}, {}},
           {"neither, and there", "\xe9.mkv", {"\xe9.mkv"}, {}},
           {"another system's", "sub\\ä b.mkv", {"sub/ä b.mkv"}, {}},
           {"absolute", folder + "/a.mkv", {"a.mkv"}, {}},
           {"an address", address + "/%23%31.mkv", {"#1.mkv"}, {}},
           {"not there", "a.mkv\nno/b.mkv\n", {"a.mkv"}, {{Reason::missing, "b.mkv"}}},
           {"elsewhere",
            "https://example.org/a.mkv\na.mkv",
            {"a.mkv"},
            {{Reason::elsewhere, "https://example.org/a.mkv"}}},
           {"a name cut short by nothing",
            QByteArray("a.mkv\0b", 7),
            {},
            {{Reason::missing, QString("a.mkv") + QChar(0) + "b"}}},
           {"a line that means nothing", QByteArray(20'000'000, 'a') + "\na.mkv", {"a.mkv"}, {}},
           {"itself", "list.m3u\na.mkv", {"a.mkv"}, {}},
           {"others", "inner.m3u8\na.mkv", {"a.mkv", "a.mkv"}, {{Reason::missing, "gone.mkv"}}},
           {"a stream in pieces", "a.mkv\n#EXT-X-VERSION:3\nb.ts\n", {"list.m3u"}, {}},
       }) {
    write("list.m3u", text);
    const OpenedLists lists = opened("list.m3u");
    EXPECT_EQ(found(lists), files) << name;
    EXPECT_EQ(lists.skipped, skipped) << name;
  }
}

TEST_F(PlaylistFile, ComesToAnEnd) {
  // Each names the next a thousand times, and the last one nothing.
  for (int i = 0; i < 6; ++i)
    write(std::to_string(i) + ".m3u",
          QByteArray(std::to_string(i + 1).c_str()).append(".m3u\n").repeated(1000));
  write("6.m3u", "");
  EXPECT_TRUE(opened("0.m3u").files.isEmpty());

  ASSERT_EQ(mkfifo(path("pipe.m3u").c_str(), 0600), 0);
  EXPECT_EQ(opened("pipe.m3u").skipped, QList<Skipped>({{Reason::unreadable, "pipe.m3u"}}));
  EXPECT_EQ(opened("none.m3u").sentence(), "The list none.m3u can't be read.");

  write("a.mkv", "");
  write("many.m3u8", QByteArray("a.mkv\n").repeated(10'000) + "b.mkv\nc.mkv\n");
  EXPECT_EQ(opened("many.m3u8").files.size(), 10'000);
  EXPECT_EQ(opened("many.m3u8").sentence(), "Skipped b.mkv and 1 more, which can't be played.");
}

TEST_F(PlaylistFile, GivesBackWhatWasWritten) {
  QRandomGenerator random(7);
  // What means something in a list, in an address or in a path.
  const std::vector<std::string> pieces{"a",       "#",  " ",  "\n",   "\r", "%41",
                                        "://",     "\\", "ä",  "\xff", ".",  "\xef\xbb\xbf",
                                        "file://", "?",  "\t", "..",   ";"};
  std::vector<PlaylistEntry> entries;
  std::vector<std::string> names;
  for (int i = 0; i < 300; ++i) {
    std::string name;
    for (int part = random.bounded(1, 6); part > 0; --part)
      name += pieces[std::size_t(random.bounded(int(pieces.size())))];
    for (std::size_t slash; (slash = name.find("//")) != std::string::npos;) name.erase(slash, 1);
    if (name.ends_with('/')) name += 'x';
    if (name.front() == '/') name.erase(0, 1);
    name = (i % 3 ? "" : "below/") + name + (i % 2 ? "a" : ".mkv");
    write(name, "");
    names.push_back(name);
    entries.push_back({path(name), QString::fromStdString(name)});
  }
  write("list.m3u8", playlistText(entries, path("").substr(0, path("").size() - 1)));
  const OpenedLists lists = opened("list.m3u8");
  const auto back = found(lists);
  ASSERT_EQ(back.size(), names.size());
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(back[i], names[i]) << i;
  EXPECT_TRUE(lists.skipped.isEmpty()) << lists.sentence().toStdString();

  // What lies below goes along when the folder moves; what lies elsewhere stays where it is.
  const QByteArray text =
      playlistText({{"/films/one.mkv", "A\nfilm"}, {"/other/two.mkv", "B"}}, "/films");
  EXPECT_EQ(text, "#EXTM3U\n#EXTINF:-1,A film\none.mkv\n#EXTINF:-1,B\n/other/two.mkv\n");
}

}  // namespace tromelo::testing
