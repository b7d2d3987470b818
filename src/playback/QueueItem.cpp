#include "playback/QueueItem.h"

#include <algorithm>

#include "engine/MpvValue.h"
#include "platform/FilePath.h"

namespace tromelo {

namespace {

/// The directory's own name for a directory.
QString lastComponent(QStringView path) {
  while (path.size() > 1 && path.endsWith(u'/')) path.chop(1);
  return path.sliced(path.lastIndexOf(u'/') + 1).toString();
}

QString queueTitle(const MpvMap& entry, const QString& path) {
  const auto title = nodeText(entry, "title");
  return withoutLastPathExtension(title ? *title : lastComponent(path));
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
    const auto* file = mpvEntry<std::string>(*entry, "filename");
    const QString path = nodeText(*entry, "filename").value_or(QString());
    const auto* number = mpvEntry<std::int64_t>(*entry, "id");
    queue.append({.id = queue.size(),
                  .title = queueTitle(*entry, path),
                  .path = path,
                  .isCurrent = isCurrent(*entry),
                  .entry = number ? *number : -1,
                  .file = file ? *file : std::string()});
  }
  return queue;
}

QueueOrder orderOf(const PlayQueue& queue) {
  QueueOrder order;
  order.reserve(queue.size());
  for (const QueueItem& item : queue) order.append(item.entry);
  return order;
}

PlayQueue inOrder(const PlayQueue& queue, const QueueOrder& order) {
  const auto places = placesIn(orderOf(queue));
  PlayQueue ordered;
  ordered.reserve(order.size());
  for (const qint64 entry : order) ordered.append(queue[places.value(entry)]);
  return ordered;
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
