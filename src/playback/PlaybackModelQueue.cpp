#include <utility>

#include "playback/PlaybackModel.h"

namespace tromelo {

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
  isShuffled_ = !isShuffled_;
  reorder(isShuffled_ ? shuffle_.turnOn(queue_) : shuffle_.turnOff(queue_));
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

}  // namespace tromelo
