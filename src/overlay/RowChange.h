#pragma once

#include <QList>
#include <algorithm>

namespace tromelo {

/// What makes one list into another: from row `first` on, `removed` rows go and `inserted` ones
/// come in their place.
struct RowChange {
  qsizetype first = 0;
  qsizetype removed = 0;
  qsizetype inserted = 0;

  friend bool operator==(const RowChange&, const RowChange&) = default;
};

/// The rows that both begin with and both end with stay. `same` tells whether two are the same one,
/// whatever else of it has changed.
template <typename Record, typename Same>
RowChange rowChange(const QList<Record>& before, const QList<Record>& after, Same same) {
  const auto head = std::mismatch(before.begin(), before.end(), after.begin(), after.end(), same);
  const auto tail = std::mismatch(before.rbegin(), std::make_reverse_iterator(head.first),
                                  after.rbegin(), std::make_reverse_iterator(head.second), same);
  return {head.first - before.begin(), tail.first.base() - head.first,
          tail.second.base() - head.second};
}

}  // namespace tromelo
