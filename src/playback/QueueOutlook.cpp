#include "playback/QueueOutlook.h"

namespace tromelo {

void QueueOutlook::opened(const QString& title) {
  *this = {};
  awaitsFirst_ = true;
  position_ = -1;
  appended(title);
}

void QueueOutlook::appended(const QString& title) {
  awaitsMore_ = true;
  queue_.append({.id = queue_.size(), .title = title, .path = {}, .isCurrent = false});
}

void QueueOutlook::fileStarted() {
  if (!reportIsAhead_) ++position_;
  awaitsFirst_ = false;
  reportIsAhead_ = false;
  startedSinceReport_ = true;
}

void QueueOutlook::reported(const PlayQueue& queue) {
  if (awaitsFirst_) return;
  if (queue.size() >= queue_.size()) awaitsMore_ = false;
  if (!awaitsMore_) queue_ = queue;
  const qsizetype current = currentIndex(queue).value_or(queue_.size());
  reportIsAhead_ = current != position_ && !startedSinceReport_;
  position_ = current;
  startedSinceReport_ = false;
}

std::optional<QString> QueueOutlook::unreportedTitle() const {
  if (!startedSinceReport_ || position_ < 0 || position_ >= queue_.size()) return {};
  return queue_[position_].title;
}

}  // namespace tromelo
