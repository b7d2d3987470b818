#include "playback/QueueOutlook.h"

#include <algorithm>

namespace tromelo {

void QueueOutlook::opened(const QString& title) {
  *this = {};
  awaitsFirst_ = true;
  appended(title);
}

void QueueOutlook::appended(const QString& title) {
  awaitsMore_ = true;
  queue_.append({.id = queue_.size(), .title = title, .path = {}, .isCurrent = false});
}

void QueueOutlook::fileStarted() {
  left_.push_back(position_);
  if (jump_) {
    position_ = *jump_;
  } else if (!reportIsAhead_) {
    ++position_;
  }
  jump_.reset();
  awaitsFirst_ = false;
  reportIsAhead_ = false;
}

void QueueOutlook::reported(const PlayQueue& queue) {
  if (awaitsFirst_) return;
  const qsizetype current = currentIndex(queue).value_or(position_);
  const bool wasMoved = queue.size() < queue_.size() && isSameFile(queue, current);
  if (queue.size() >= queue_.size()) awaitsMore_ = false;
  if (!awaitsMore_) queue_ = queue;
  // The engine's answer can be older than the starts that it told of meanwhile.
  if (!wasMoved && current != position_ && std::ranges::find(left_, current) != left_.end()) return;
  reportIsAhead_ = current != position_ && left_.empty() && !wasMoved;
  position_ = current;
  left_.clear();
}

std::optional<qsizetype> QueueOutlook::leftOver(const PlayQueue& queue) const {
  if (awaitsFirst_ || jump_ || currentIndex(queue) || position_ + 1 >= queue.size()) return {};
  return position_ + 1;
}

/// As the one that started last.
bool QueueOutlook::isSameFile(const PlayQueue& queue, qsizetype current) const {
  const auto has = [](const PlayQueue& of, qsizetype at) { return at >= 0 && at < of.size(); };
  return has(queue, current) && has(queue_, position_) &&
         queue[current].path == queue_[position_].path;
}

std::optional<QString> QueueOutlook::unreportedTitle() const {
  if (left_.empty() || position_ < 0 || position_ >= queue_.size()) return {};
  return queue_[position_].title;
}

}  // namespace tromelo
