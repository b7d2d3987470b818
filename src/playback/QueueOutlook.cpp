#include "playback/QueueOutlook.h"

namespace tromelo {

void QueueOutlook::opened(const QString& firstPath, qsizetype count) {
  *this = {};
  awaitedFirst_ = firstPath;
  awaitsMore_ = true;
  count_ = count;
  position_ = -1;
}

void QueueOutlook::appended(qsizetype count) {
  awaitsMore_ = true;
  count_ += count;
}

void QueueOutlook::fileStarted() {
  if (!reportIsAhead_) ++position_;
  reportIsAhead_ = false;
  startedSinceReport_ = true;
}

void QueueOutlook::reported(const PlayQueue& queue) {
  if (!awaitedFirst_.isEmpty()) {
    if (queue.isEmpty() || queue.first().path != awaitedFirst_) return;
    awaitedFirst_.clear();
  }
  if (queue.size() >= count_) awaitsMore_ = false;
  if (!awaitsMore_) count_ = queue.size();
  const qsizetype current = currentIndex(queue).value_or(count_);
  reportIsAhead_ = current != position_ && !startedSinceReport_;
  position_ = current;
  startedSinceReport_ = false;
}

}  // namespace tromelo
