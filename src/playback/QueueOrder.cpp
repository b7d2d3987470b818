#include "playback/QueueOrder.h"

#include <algorithm>

namespace tromelo {

namespace {

/// The most entries that can stay where they are: those of a longest rising subsequence of the
/// places that they are to have.
QSet<qint64> entriesThatStay(const QueueOrder& order, const QueueOrder& wanted) {
  const auto places = placesIn(wanted);
  QList<qsizetype> ends;  // of the best one of each length, an index into the order
  QList<qsizetype> former(order.size(), -1);
  const auto placeOf = [&](qsizetype index) { return places.value(order[index]); };
  for (qsizetype i = 0; i < order.size(); ++i) {
    const auto longer = std::ranges::lower_bound(ends, placeOf(i), {}, placeOf);
    if (longer != ends.begin()) former[i] = *std::prev(longer);
    if (longer == ends.end())
      ends.append(i);
    else
      *longer = i;
  }
  QSet<qint64> stay;
  for (qsizetype i = ends.isEmpty() ? -1 : ends.last(); i >= 0; i = former[i])
    stay.insert(order[i]);
  return stay;
}

void shuffle(QueueOrder::iterator first, QueueOrder::iterator last,
             const RandomBelow& randomBelow) {
  for (auto left = last - first; left > 1; --left)
    std::iter_swap(first + left - 1, first + randomBelow(left));
}

}  // namespace

QHash<qint64, qsizetype> placesIn(const QueueOrder& order) {
  QHash<qint64, qsizetype> places;
  for (qsizetype i = 0; i < order.size(); ++i) places.insert(order[i], i);
  return places;
}

QList<QueueMove> movesBetween(QueueOrder order, const QueueOrder& wanted) {
  const QSet<qint64> stay = entriesThatStay(order, wanted);
  QList<QueueMove> moves;
  qsizetype before = 0;  // where the next one belongs
  for (const qint64 entry : wanted) {
    const qsizetype from = order.indexOf(entry);
    if (stay.contains(entry)) {
      before = from + 1;
      continue;
    }
    moves.append({from, before});
    order.move(from, placeInGap(from, before));
    before = placeInGap(from, before) + 1;
  }
  return moves;
}

qsizetype placeInGap(qsizetype from, qsizetype gap) { return gap > from ? gap - 1 : gap; }

QueueOrder shuffled(const QueueOrder& order, const QSet<qint64>& fixed, qint64 current,
                    const RandomBelow& randomBelow) {
  QueueOrder result = order;
  const auto isFixed = [&](qint64 entry) { return entry != current && fixed.contains(entry); };
  auto next = std::stable_partition(result.begin(), result.end(), isFixed);
  next = std::stable_partition(next, result.end(), [&](qint64 one) { return one == current; });
  shuffle(next, result.end(), randomBelow);
  return result;
}

QueueOrder mixedIn(const QueueOrder& order, const QSet<qint64>& fresh, qint64 current,
                   const RandomBelow& randomBelow) {
  QueueOrder result;
  QueueOrder others;
  const auto keeps = [&](qint64 entry) { return entry == current || !fresh.contains(entry); };
  std::ranges::partition_copy(order, std::back_inserter(result), std::back_inserter(others), keeps);
  const qsizetype first = result.indexOf(current) + 1;
  for (const qint64 entry : others)
    result.insert(first + randomBelow(result.size() - first + 1), entry);
  return result;
}

QueueOrder restored(const QueueOrder& order, const QueueOrder& before) {
  const auto places = placesIn(before);
  QueueOrder result = order;
  std::ranges::sort(result, {}, [&](qint64 entry) {
    return std::pair(places.value(entry, before.size()), entry);
  });
  return result;
}

}  // namespace tromelo
