#include "playback/RecentFiles.h"

#include <algorithm>

#include "platform/FilePath.h"

namespace tromelo {

RecentFiles::RecentFiles(const QJsonValue& stored) {
  const QJsonArray texts = stored.toArray();
  for (auto text = texts.begin(); text != texts.end() && entries_.size() < kMost; ++text) {
    const QUrl file = fileUrlFromPath(pathFromStored(text->toString()));
    const bool isNew = std::ranges::find(entries_, file, &Entry::file) == entries_.end();
    if (file.isValid() && isNew) entries_.append({.file = file});
  }
}

QList<QUrl> RecentFiles::filesThat(bool areKnown) const {
  QList<QUrl> files;
  for (const Entry& entry : entries_)
    if (entry.isKnown == areKnown) files.append(entry.file);
  return files;
}

QList<QUrl> RecentFiles::files() const { return filesThat(true); }

QList<QUrl> RecentFiles::unknown() const { return filesThat(false); }

QJsonArray RecentFiles::stored() const {
  QJsonArray texts;
  for (const Entry& entry : entries_) texts.append(storedPath(pathFromFileUrl(entry.file)));
  return texts;
}

void RecentFiles::found(const QUrl& file, bool exists) {
  const auto entry = std::ranges::find(entries_, file, &Entry::file);
  if (entry == entries_.end() || entry->isKnown) return;  // played or removed meanwhile
  if (exists) {
    entry->isKnown = true;
  } else {
    entries_.erase(entry);
  }
}

void RecentFiles::remember(const QUrl& file) {
  remove(file);
  entries_.prepend({.file = file, .isKnown = true});
  if (entries_.size() > kMost) entries_.resize(kMost);
}

void RecentFiles::remove(const QUrl& file) {
  entries_.removeIf([&file](const Entry& entry) { return entry.file == file; });
}

}  // namespace tromelo
