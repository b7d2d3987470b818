#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

namespace tromelo {

/// The keys of a row that has the keyboard, which come before the player's own: Alt+Up and Alt+Down
/// move it, Delete removes it.
class RowKeys : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)

 public:
  using QQuickItem::QQuickItem;

  bool isActive() const { return isActive_; }
  void setActive(bool active);

 Q_SIGNALS:
  void activeChanged();
  void moved(int rows);
  void removed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isActive_ = false;
  QPointer<QQuickWindow> watched_;
};

}  // namespace tromelo
