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
  if (jump_) {
    position_ = *jump_;
  } else if (!reportIsAhead_) {
    ++position_;
  }
  jump_.reset();
  awaitsFirst_ = false;
  reportIsAhead_ = false;
  startedSinceReport_ = true;
}

void QueueOutlook::reported(const PlayQueue& queue) {
  if (awaitsFirst_) return;
  const qsizetype current = currentIndex(queue).value_or(queue_.size());
  const bool wasMoved = queue.size() < queue_.size() && isSameFile(queue, current);
  if (queue.size() >= queue_.size()) awaitsMore_ = false;
  if (!awaitsMore_) queue_ = queue;
  reportIsAhead_ = current != position_ && !startedSinceReport_ && !wasMoved;
  position_ = current;
  startedSinceReport_ = false;
}

/// As the one that started last.
bool QueueOutlook::isSameFile(const PlayQueue& queue, qsizetype current) const {
  const auto has = [](const PlayQueue& of, qsizetype at) { return at >= 0 && at < of.size(); };
  return has(queue, current) && has(queue_, position_) &&
         queue[current].path == queue_[position_].path;
}

std::optional<QString> QueueOutlook::unreportedTitle() const {
  if (!startedSinceReport_ || position_ < 0 || position_ >= queue_.size()) return {};
  return queue_[position_].title;
}

}  // namespace tromelo
