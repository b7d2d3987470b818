#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <algorithm>

namespace tromelo {

/// A list of gadgets for views, each property of theirs a role. A new list changes no more rows
/// than it has to, so that views keep their place. Main thread only.
class RecordModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 protected:
  RecordModel(const QMetaObject& record, QObject* parent)
      : QAbstractListModel(parent), record_(record) {}

  virtual const void* recordAt(int row) const = 0;

  /// Takes `rows` to `fresh`. The rows that both begin with and both end with stay; `same` tells
  /// whether two are the same one, whatever else of it has changed.
  template <typename Record, typename Same>
  void replace(QList<Record>& rows, const QList<Record>& fresh, Same same);

 private:
  /// Does what has happened to these rows where one of them has gone to the other end.
  template <typename Record, typename Same>
  bool moveOne(QList<Record>& rows, const QList<Record>& fresh, int first, int count, Same same);

  const QMetaObject& record_;
};

template <typename Record, typename Same>
bool RecordModel::moveOne(QList<Record>& rows, const QList<Record>& fresh, int first, int count,
                          Same same) {
  const auto old = rows.cbegin() + first;
  const auto now = fresh.cbegin() + first;
  const int last = first + count - 1;
  const bool isDown = std::equal(old + 1, old + count, now, same) && same(*old, now[count - 1]);
  const bool isUp = std::equal(old, old + count - 1, now + 1, same) && same(old[count - 1], *now);
  if (!isDown && !isUp) return false;
  const int from = isDown ? first : last;
  beginMoveRows({}, from, from, {}, isDown ? last + 1 : first);
  rows.move(from, isDown ? last : first);
  endMoveRows();
  return true;
}

template <typename Record, typename Same>
void RecordModel::replace(QList<Record>& rows, const QList<Record>& fresh, Same same) {
  const auto head = std::mismatch(rows.cbegin(), rows.cend(), fresh.cbegin(), fresh.cend(), same);
  const auto tail = std::mismatch(rows.crbegin(), std::make_reverse_iterator(head.first),
                                  fresh.crbegin(), std::make_reverse_iterator(head.second), same);
  const auto first = static_cast<int>(head.first - rows.cbegin());
  const auto removed = static_cast<int>(tail.first.base() - head.first);
  const auto inserted = static_cast<int>(tail.second.base() - head.second);
  const bool isMove = removed > 1 && removed == inserted;
  const bool isMoved = isMove && moveOne(rows, fresh, first, removed, same);
  if (removed > 0 && !isMoved) {
    beginRemoveRows({}, first, first + removed - 1);
    rows.remove(first, removed);
    endRemoveRows();
  }
  if (inserted > 0 && !isMoved) {
    beginInsertRows({}, first, first + inserted - 1);
    rows = rows.first(first) + fresh.sliced(first, inserted) + rows.sliced(first);
    endInsertRows();
  }
  for (int row = 0; row < static_cast<int>(fresh.size()); ++row) {
    if (rows[row] == fresh[row]) continue;
    rows[row] = fresh[row];
    Q_EMIT dataChanged(index(row), index(row));
  }
}

}  // namespace tromelo
