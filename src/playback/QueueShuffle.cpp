#include "playback/QueueShuffle.h"

namespace tromelo {

namespace {

qint64 currentEntry(const PlayQueue& queue) {
  const auto current = currentIndex(queue);
  return current ? queue[*current].entry : -1;
}

}  // namespace

QueueOrder QueueShuffle::turnOn(const PlayQueue& queue) {
  isOn_ = true;
  before_ = orderOf(queue);
  return shuffled(before_, started_, currentEntry(queue), randomBelow_);
}

QueueOrder QueueShuffle::turnOff(const PlayQueue& queue) {
  isOn_ = false;
  return restored(orderOf(queue), std::exchange(before_, {}));
}

std::optional<QueueOrder> QueueShuffle::take(const PlayQueue& queue) {
  if (!isOn_ || !currentIndex(queue)) return {};
  const QueueOrder order = orderOf(queue);
  QSet<qint64> fresh(order.begin(), order.end());
  for (const qint64 entry : std::as_const(before_)) fresh.remove(entry);
  if (fresh.isEmpty()) return {};
  before_ = restored(order, before_);
  return mixedIn(order, fresh, currentEntry(queue), randomBelow_);
}

}  // namespace tromelo
