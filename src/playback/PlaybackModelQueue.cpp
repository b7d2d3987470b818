#include <QFile>
#include <QPointer>
#include <QSaveFile>
#include <QThreadPool>
#include <utility>

#include "platform/FilePath.h"
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

void PlaybackModel::playQueueItem(qint64 item) {
  engine_.command({"playlist-play-index", std::to_string(item)});
}

void PlaybackModel::removeQueueItem(qint64 item) {
  engine_.command({"playlist-remove", std::to_string(item)});
}

void PlaybackModel::clearQueue() { engine_.command({"playlist-clear"}); }

void PlaybackModel::moveQueueItem(qint64 item, qint64 gap) {
  PlayQueue queue = queue_;
  if (item < 0 || item >= queue.size() || gap < 0 || gap > queue.size()) return;
  if (placeInGap(item, gap) == item) return;
  send({item, gap});
  queue.move(item, placeInGap(item, gap));
  showMoved(std::move(queue));
}

void PlaybackModel::toggleShuffle() {
  const QueueOrder wanted = shuffle_.isOn() ? shuffle_.turnOff(queue_) : shuffle_.turnOn(queue_);
  isShuffled_ = shuffle_.isOn();
  reorder(wanted);
}

void PlaybackModel::reorder(const QueueOrder& wanted) {
  const auto moves = movesBetween(orderOf(queue_), wanted);
  for (const QueueMove& move : moves) send(move);
  if (!moves.isEmpty()) showMoved(inOrder(queue_, wanted));
}

void PlaybackModel::send(QueueMove move) {
  ++unmoved_;
  engine_.command({"playlist-move", std::to_string(move.from), std::to_string(move.before)},
                  [this](const std::optional<std::string>&) {
                    if (--unmoved_ > 0) return;
                    if (const auto told = std::exchange(queueMeanwhile_, {})) takeQueue(*told);
                  });
}

/// The next move counts on the order that this one makes, so that is shown at once; what the engine
/// tells on the way there would take it back.
void PlaybackModel::showMoved(PlayQueue queue) {
  for (qsizetype i = 0; i < queue.size(); ++i) queue[i].id = i;
  queue_ = std::move(queue);
}

void PlaybackModel::takeQueue(const PlayQueue& queue) {
  if (unmoved_ > 0) {
    queueMeanwhile_ = queue;
    return;
  }
  queue_ = queue;
  settleFailures();
  if (const auto order = shuffle_.take(queue)) reorder(*order);
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
