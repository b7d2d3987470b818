#include "platform/FolderVideos.h"

#include <QCollator>
#include <QLocale>
#include <QSet>
#include <algorithm>
#include <filesystem>
#include <vector>

#include "platform/FilePath.h"
#include "platform/VideoTypes.h"

namespace tromelo {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostFiles = 100'000;

/// As people count. The C locale has no such order.
QCollator naturalOrder() {
  const QLocale locale;
  QCollator order(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
  order.setNumericMode(true);
  order.setCaseSensitivity(Qt::CaseInsensitive);
  return order;
}

struct Name {
  std::string bytes;
  QCollatorSortKey key;

  Name(std::string name, const QCollator& order)
      : bytes(std::move(name)), key(order.sortKey(QString::fromStdString(bytes))) {}

  bool operator<(const Name& other) const {
    const int compared = key.compare(other.key);
    return compared != 0 ? compared < 0 : bytes < other.bytes;
  }
};

bool isVideo(const fs::directory_entry& entry, const QSet<QString>& suffixes) {
  const std::string name = entry.path().filename().string();
  const auto dot = name.rfind('.');
  if (name.starts_with('.') || dot == std::string::npos) return false;
  if (!suffixes.contains(QString::fromStdString(name.substr(dot + 1)).toLower())) return false;
  std::error_code error;
  return entry.is_regular_file(error);
}

}  // namespace

QList<QUrl> videosBehind(const std::string& path) {
  const QCollator order = naturalOrder();
  const QSet<QString> suffixes = videoSuffixes();
  const fs::path folder = fs::path(path).parent_path();
  const Name here(fs::path(path).filename().string(), order);
  std::vector<Name> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (names.size() >= kMostFiles) break;
    if (!isVideo(*entry, suffixes)) continue;
    Name name(entry->path().filename().string(), order);
    if (here < name) names.push_back(std::move(name));
  }
  std::ranges::sort(names, std::less<>());
  QList<QUrl> files;
  for (const Name& name : names) files.append(fileUrlFromPath((folder / name.bytes).string()));
  return files;
}

}  // namespace tromelo
