#include <QFile>
#include <QPointer>
#include <QSaveFile>
#include <QSet>
#include <QThreadPool>

#include "platform/FilePath.h"
#include "platform/FolderVideos.h"
#include "platform/MainThread.h"
#include "playback/FileChooser.h"
#include "playback/PlaybackModel.h"
#include "playback/PlaylistFile.h"

namespace tromelo {

namespace {

/// What is wrong; empty where nothing is. A file that was there stays whole until then.
QString write(const std::string& path, const QByteArray& text) {
  QSaveFile file(QFile::decodeName(QByteArray::fromStdString(path)));
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
  return isWritten && file.commit() ? QString() : file.errorString();
}

}  // namespace

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

void PlaybackModel::presentSavePanel() {
  if (queue_.get().isEmpty()) return;
  const QString list = QStringLiteral("m3u8");
  files_.chooseNewFile({.prompt = tr("Save Queue"), .allowsSeveral = false, .extensions = {list}},
                       tr("Queue") + u'.' + list,
                       [model = QPointer(this)](const QList<QUrl>& urls) {
                         if (model) model->saveQueue(urls.first());
                       });
}

void PlaybackModel::saveQueue(const QUrl& file) {
  const std::string path = pathFromFileUrl(file);
  std::vector<PlaylistEntry> entries;
  for (const QueueItem& item : queue_.get()) entries.push_back({item.file, item.title});
  const auto tell = [model = QPointer(this), file](const QString& error) {
    if (!model) return;
    if (error.isEmpty()) return model->player().showToast(tr("Queue saved"));
    model->tell(tr("The queue can't be saved as %1; choose another folder. (%2)")
                    .arg(lastPathComponent(file), error));
  };
  // The end of the program waits for it.
  QThreadPool::globalInstance()->start([entries, path, tell] {
    const QString error = write(path, playlistText(entries, path.substr(0, path.rfind('/'))));
    postToMainThread([tell, error] { tell(error); });
  });
}

}  // namespace tromelo
