#include <QSet>

#include "platform/FilePath.h"
#include "platform/FolderVideos.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

/// The engine pauses at the end of what comes last, by itself.
void PlaybackModel::checkEnd() {
  if (!isAtEnd_) hasAskedFolder_ = false;
  const bool hasEnded = isAtEnd_ && isPaused_ && !wantsPause_ && !isScrubbing_;
  if (!hasEnded || hasAskedFolder_ || hasNext() || !currentPath_) return;
  if (!settings_.goesOnInFolder()) return;
  hasAskedFolder_ = true;
  reading_.run([path = *currentPath_] { return videosBehind(path); },
               [this](const QList<QUrl>& files) { takeNextOfFolder(files); });
}

void PlaybackModel::takeNextOfFolder(const QList<QUrl>& files) {
  if (files.isEmpty() || !isAtEnd_ || hasNext()) return;
  append(files.first(1));
  playNext();
  setPause(false);
}

void PlaybackModel::addRestOfFolder() {
  if (!currentPath_) return;
  reading_.run([path = *currentPath_] { return videosBehind(path); },
               [this](const QList<QUrl>& files) { takeRestOfFolder(files); });
}

void PlaybackModel::takeRestOfFolder(const QList<QUrl>& files) {
  QSet<QByteArray> queued;
  for (const QueueItem& item : queue_.get()) queued.insert(QByteArray::fromStdString(item.file));
  QList<QUrl> missing = files;
  missing.removeIf([&](const QUrl& file) {
    return queued.contains(QByteArray::fromStdString(pathFromFileUrl(file)));
  });
  append(missing);
  const int count = static_cast<int>(missing.size());
  player().showToast(count > 0 ? tr("Added %n videos to queue", "", count)
                               : tr("No other video follows in this folder"));
}

}  // namespace tromelo
