#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

#include "overlay/ClickCounter.h"
#include "overlay/ScrollSteps.h"
#include "overlay/WindowPress.h"

namespace tromelo {

/// Takes clicks, drags, scrolling and dropped files on the bare video, and moves the window with
/// the hand that drags it. Main thread only.
class PlayerOverlayInput : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT

 public:
  explicit PlayerOverlayInput(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  /// Without waiting for a second one.
  void clicked();
  void doubleClicked();
  /// Whole steps, never 0; up is positive.
  void scrolled(double steps);
  /// Never empty.
  void filesDropped(const QList<QUrl>& files);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseUngrabEvent() override;
  void wheelEvent(QWheelEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void moveWindow(QPoint origin);

  ClickCounter clicks_;
  WindowPress press_;
  ScrollSteps scroll_;
};

}  // namespace tromelo
