#pragma once

#include <QtQml/qqmlregistration.h>

#include <QAbstractListModel>
#include <QList>
#include <QUrl>

namespace tromelo {

/// The rows of recent files. A new list moves rows rather than making them anew, so that a view
/// stays at the file where it is. Main thread only.
class RecentsModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QList<QUrl> files READ files WRITE setFiles NOTIFY filesChanged)

 public:
  /// The file itself, its name without the extension, and where it is; both for people.
  enum Role { File = Qt::UserRole, Name, Path };

  using QAbstractListModel::QAbstractListModel;

  const QList<QUrl>& files() const { return files_; }
  void setFiles(const QList<QUrl>& files);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 Q_SIGNALS:
  void filesChanged();

 private:
  void removeAllBut(const QList<QUrl>& files);
  void place(const QUrl& file, int row);

  QList<QUrl> files_;
};

}  // namespace tromelo
