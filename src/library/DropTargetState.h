#pragma once

#include <QtQml/qqmlregistration.h>

#include <QList>
#include <QQuickItem>
#include <QUrl>

namespace tromelo {

/// A place to drop files on, and whether files hover over it. Main thread only.
class DropTargetState : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool isTargeted READ isTargeted NOTIFY isTargetedChanged)

 public:
  explicit DropTargetState(QQuickItem* parent = nullptr);

  bool isTargeted() const { return isTargeted_; }

 Q_SIGNALS:
  void isTargetedChanged();
  /// At least one, in the order of the drag.
  void filesDropped(const QList<QUrl>& files);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void setTargeted(bool targeted);

  bool isTargeted_ = false;
};

}  // namespace tromelo
