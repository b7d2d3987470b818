#include <QTemporaryDir>
#include <filesystem>

#include "Targets.h"
#include "platform/FilePath.h"
#include "playback/PlaylistFile.h"
#include "support/Files.h"

namespace tromelo::fuzz {

namespace {

/// A name that a file may have in a folder.
bool isName(std::string_view name) {
  return !name.empty() && name.size() < 200 && name != "." && name != ".." &&
         name.find('/') == std::string_view::npos && name.find('\0') == std::string_view::npos;
}

void readList(const std::string& folder, std::string_view content) {
  const std::string list = folder + "/list.m3u";
  testing::writeFile(list, std::string(content));
  const OpenedLists opened = openLists({fileUrlFromPath(list)});
  for (const QUrl& file : opened.files) check(fileExists(pathFromFileUrl(file)));
  for (const auto& skipped : opened.skipped) check(skipped.name.size() <= 81);
  opened.sentence();
}

/// Whatever files are called, the list that we write of them is read as these files.
void writeList(const std::string& folder, Input input) {
  std::vector<PlaylistEntry> entries;
  QList<QUrl> files;
  while (!input.isEmpty() && entries.size() < 8) {
    const std::string name(input.line());
    const QUrl file = fileUrlFromPath(folder + "/kept/" + name);
    if (!isName(name) || isPlaylistFile(file)) continue;
    testing::writeFile(pathFromFileUrl(file));
    entries.push_back({pathFromFileUrl(file), QString::fromStdString(name)});
    files << file;
  }
  for (const char* place : {"/written.m3u8", "/kept/written.m3u8"}) {
    const std::string list = folder + place;
    const std::string from = list.substr(0, list.rfind('/'));
    testing::writeFile(list, playlistText(entries, from).toStdString());
    const OpenedLists opened = openLists({fileUrlFromPath(list)});
    check(opened.files == files && opened.skipped.isEmpty());
    std::filesystem::remove(list);
  }
  for (const PlaylistEntry& entry : entries) std::filesystem::remove(entry.path);
}

}  // namespace

/// A list, and behind a line of "=" the names of files that one is written of.
void playlists(Input input) {
  static const QTemporaryDir directory;
  static const std::string folder = directory.path().toStdString();
  static const bool isReady = [] {
    for (const char* name : {"/a.mkv", "/ü.mkv", "/\xfc.mkv", "/below/b.mkv", "/kept/c.mkv"})
      testing::writeFile(folder + name);
    testing::writeFile(folder + "/below/list.m3u", "../list.m3u\nb.mkv\nlist.m3u\n");
    return true;
  }();
  check(isReady);
  readList(folder, input.until("\n=\n"));
  writeList(folder, input);
}

}  // namespace tromelo::fuzz
