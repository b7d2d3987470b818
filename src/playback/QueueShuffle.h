#pragma once

#include <QSet>
#include <optional>
#include <utility>

#include "playback/QueueItem.h"

namespace tromelo {

/// Whether chance says what comes next, and all that is needed to go back. Entries are known by the
/// engine's numbers, which no two ever share.
class QueueShuffle {
 public:
  explicit QueueShuffle(RandomBelow randomBelow) : randomBelow_(std::move(randomBelow)) {}

  /// An entry plays or has played.
  void started(qint64 entry) { started_.insert(entry); }

  bool isOn() const { return isOn_; }
  /// Each gives the order that the queue is to have.
  QueueOrder turnOn(const PlayQueue& queue);
  QueueOrder turnOff(const PlayQueue& queue);

  /// The order that the queue is to have now that entries have come in; none where it is right as
  /// it is. They wait until it is known what plays.
  std::optional<QueueOrder> take(const PlayQueue& queue);

 private:
  RandomBelow randomBelow_;
  QSet<qint64> started_;
  bool isOn_ = false;
  QueueOrder before_;  // with the entries that have come in since
};

}  // namespace tromelo
