#include "playback/QueueItem.h"

#include <algorithm>

#include "engine/MpvValue.h"
#include "platform/FilePath.h"

namespace tromelo {

namespace {

QString text(const MpvMap& entry, std::string_view key) {
  const auto* bytes = mpvEntry<std::string>(entry, key);
  return bytes ? QString::fromUtf8(*bytes) : QString();
}

QString queueTitle(const MpvMap& entry, const QString& path) {
  const bool hasTitle = mpvEntry<std::string>(entry, "title") != nullptr;
  return withoutLastPathExtension(hasTitle ? text(entry, "title")
                                           : path.sliced(path.lastIndexOf(u'/') + 1));
}

bool isCurrent(const MpvMap& entry) {
  for (const char* key : {"current", "playing"}) {
    if (const auto* flag = mpvEntry<bool>(entry, key)) return *flag;
  }
  return false;
}

}  // namespace

PlayQueue playQueue(const MpvValue& playlist) {
  const auto entries = playlist.list();
  PlayQueue queue;
  queue.reserve(static_cast<qsizetype>(entries.size()));
  for (const MpvMap* entry : entries) {
    const QString path = text(*entry, "filename");
    queue.append({queue.size(), queueTitle(*entry, path), path, isCurrent(*entry)});
  }
  return queue;
}

std::optional<qsizetype> currentIndex(const PlayQueue& queue) {
  const auto current = std::ranges::find_if(queue, &QueueItem::isCurrent);
  if (current == queue.end()) return {};
  return current - queue.begin();
}

bool hasNext(const PlayQueue& queue) {
  return currentIndex(queue).value_or(queue.size()) < queue.size() - 1;
}

bool hasPrevious(const PlayQueue& queue) { return currentIndex(queue).value_or(0) > 0; }

}  // namespace tromelo
