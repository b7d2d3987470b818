#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>

#include "overlay/RowChange.h"

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

  /// Takes `rows` to `fresh`; `same` as for rowChange().
  template <typename Record, typename Same>
  void replace(QList<Record>& rows, const QList<Record>& fresh, Same same);

 private:
  const QMetaObject& record_;
};

template <typename Record, typename Same>
void RecordModel::replace(QList<Record>& rows, const QList<Record>& fresh, Same same) {
  const RowChange change = rowChange(rows, fresh, same);
  const int first = static_cast<int>(change.first);
  if (change.removed > 0) {
    beginRemoveRows({}, first, first + static_cast<int>(change.removed) - 1);
    rows.remove(change.first, change.removed);
    endRemoveRows();
  }
  if (change.inserted > 0) {
    beginInsertRows({}, first, first + static_cast<int>(change.inserted) - 1);
    rows = rows.first(change.first) + fresh.sliced(change.first, change.inserted) +
           rows.sliced(change.first);
    endInsertRows();
  }
  for (int row = 0; row < static_cast<int>(fresh.size()); ++row) {
    if (rows[row] == fresh[row]) continue;
    rows[row] = fresh[row];
    Q_EMIT dataChanged(index(row), index(row));
  }
}

}  // namespace tromelo
