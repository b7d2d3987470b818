#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <functional>

namespace tromelo {

/// The order of the queue's entries, each by the engine's number for it.
using QueueOrder = QList<qint64>;

/// Where each entry stands.
QHash<qint64, qsizetype> placesIn(const QueueOrder& order);

/// The entry at position `from` goes before the one at `before`, both as they are by then; behind
/// the last one where there is none.
struct QueueMove {
  qsizetype from;
  qsizetype before;

  friend bool operator==(QueueMove, QueueMove) = default;
};

/// As few moves as take one order to another of the same entries.
QList<QueueMove> movesBetween(QueueOrder order, const QueueOrder& wanted);

/// Position at which an entry stands once it has gone from `from` to the gap before `gap`.
qsizetype placeInGap(qsizetype from, qsizetype gap);

/// A number from 0 to below `end`.
using RandomBelow = std::function<qsizetype(qsizetype end)>;

/// What comes next, in the order of chance. Of `fixed` the entries come first and keep their order;
/// `current` is behind them, where it is in the queue.
QueueOrder shuffled(const QueueOrder& order, const QSet<qint64>& fixed, qint64 current,
                    const RandomBelow& randomBelow);

/// Entries that have come in are put anywhere behind the current one.
QueueOrder mixedIn(const QueueOrder& order, const QSet<qint64>& fresh, qint64 current,
                   const RandomBelow& randomBelow);

/// As it was before, without what has gone; what has come since is behind, as it came.
QueueOrder restored(const QueueOrder& order, const QueueOrder& before);

}  // namespace tromelo
