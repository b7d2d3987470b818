#pragma once

#include <QObject>
#include <QUrl>

namespace tromelo {

/// The desktop's file manager. Main thread only.
class FileManager : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Shows a file, selected in its folder; where no file manager can do that, opens the folder.
  /// Returns at once.
  Q_INVOKABLE void show(const QUrl& file);

 Q_SIGNALS:
  /// Neither was possible; one sentence for the person.
  void failed(const QString& sentence);

 private:
  void openFolder(const QUrl& file);
};

}  // namespace tromelo
