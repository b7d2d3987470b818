#include "playback/QueueProgress.h"

#include <algorithm>

namespace tromelo {

namespace {

/// A later one in the playlist says that it was reported after this one had come into it.
bool isReported(const PlayQueue& queue, std::int64_t entry) {
  return std::ranges::any_of(queue, [entry](const QueueItem& item) { return item.entry >= entry; });
}

}  // namespace

void QueueProgress::opened() {
  const int asked = unanswered_ + 1;
  *this = {};
  unanswered_ = ofBefore_ = asked;
}

void QueueProgress::queued(std::int64_t entry) {
  unanswered_ = std::max(unanswered_ - 1, 0);
  ofBefore_ = std::max(ofBefore_ - 1, 0);
  if (hasFailed_ && !leftBehind_) leftBehind_ = entry;
}

void QueueProgress::started() {
  for (Failed& failure : failures_) failure.isSkipped = true;
  hasFailed_ = false;
  isAtRest_ = false;
  leftBehind_.reset();
}

bool QueueProgress::failed(std::int64_t entry, const QString& reason) {
  if (ofBefore_ > 0) return false;
  failures_.append({.entry = entry, .reason = reason});
  hasFailed_ = true;
  return true;
}

std::optional<QueueProgress::Failure> QueueProgress::nextFailure(const PlayQueue& queue) {
  if (failures_.isEmpty()) return {};
  Failed& first = failures_.first();
  if (first.entry > 0 && !isReported(queue, first.entry)) return {};
  const bool isLast = !first.isSkipped && comesToNothing();
  const bool isDecided = first.isSkipped || isLast;
  const bool isNew = !std::exchange(first.isTold, true);
  if (!isNew && !isDecided) return {};
  const auto item = std::ranges::find(queue, first.entry, &QueueItem::entry);
  const Failure failure{.title = item == queue.end() ? QString() : item->title,
                        .reason = first.reason,
                        .isNew = isNew,
                        .isSkipped = first.isSkipped,
                        .isLast = isLast};
  if (isDecided) failures_.removeFirst();
  return failure;
}

std::optional<qsizetype> QueueProgress::takeLeftBehind(const PlayQueue& queue) {
  if (!isAtRest_ || !leftBehind_) return {};
  const auto item = std::ranges::find(queue, *leftBehind_, &QueueItem::entry);
  if (item == queue.end()) return {};
  leftBehind_.reset();
  isAtRest_ = false;
  return item - queue.begin();
}

}  // namespace tromelo
