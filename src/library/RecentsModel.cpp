#include "library/RecentsModel.h"

#include "platform/FilePath.h"

namespace tromelo {

void RecentsModel::setFiles(const QList<QUrl>& files) {
  if (files == files_) return;
  removeAllBut(files);
  for (int row = 0; row < static_cast<int>(files.size()); ++row) place(files[row], row);
  Q_EMIT filesChanged();
}

void RecentsModel::removeAllBut(const QList<QUrl>& files) {
  for (int row = rowCount() - 1; row >= 0; --row) {
    if (files.contains(files_[row])) continue;
    beginRemoveRows({}, row, row);
    files_.removeAt(row);
    endRemoveRows();
  }
}

/// The rows before it are in their places already.
void RecentsModel::place(const QUrl& file, int row) {
  const int present = static_cast<int>(files_.indexOf(file, row));
  if (present == row) return;
  if (present > row) {
    beginMoveRows({}, present, present, {}, row);
    files_.move(present, row);
    endMoveRows();
  } else {
    beginInsertRows({}, row, row);
    files_.insert(row, file);
    endInsertRows();
  }
}

int RecentsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(files_.size());
}

QVariant RecentsModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const QUrl& file = files_[index.row()];
  switch (role) {
    case File:
      return file;
    case Name:
      return lastPathComponentWithoutExtension(file);
    case Path:
      return QString::fromStdString(pathFromFileUrl(file));
    default:
      return {};
  }
}

QHash<int, QByteArray> RecentsModel::roleNames() const {
  return {{File, "file"}, {Name, "name"}, {Path, "path"}};
}

}  // namespace tromelo
