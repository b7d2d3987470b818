#include "overlay/RecordModel.h"

#include <QMetaProperty>

namespace tromelo {

QVariant RecordModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role < Qt::UserRole) return {};
  return record_.property(role - Qt::UserRole).readOnGadget(recordAt(index.row()));
}

QHash<int, QByteArray> RecordModel::roleNames() const {
  QHash<int, QByteArray> names;
  for (int i = 0; i < record_.propertyCount(); ++i)
    names.insert(Qt::UserRole + i, record_.property(i).name());
  return names;
}

}  // namespace tromelo
