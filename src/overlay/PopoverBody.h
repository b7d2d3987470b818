#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickItem>

namespace tromelo {

/// Keeps itself above a button of the control bar and within its parent, in the size that it wants
/// where there is that much room. Main thread only.
class PopoverBody : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  /// Both are in the same scene from the start and stay where they are in it while this lives.
  Q_PROPERTY(QQuickItem* bar MEMBER bar_ REQUIRED)
  /// Where it isn't shown, the bar stands for it.
  Q_PROPERTY(QQuickItem* button MEMBER button_ REQUIRED)
  Q_PROPERTY(double margin MEMBER margin_ REQUIRED)  // from the parent's edges
  Q_PROPERTY(double gap MEMBER gap_ REQUIRED)        // from the bar

 public:
  using QQuickItem::QQuickItem;

 protected:
  void componentComplete() override;

 private:
  void follow(const QQuickItem& item);
  void place();

  QPointer<QQuickItem> bar_;
  QPointer<QQuickItem> button_;
  double margin_ = 0;
  double gap_ = 0;
};

}  // namespace tromelo
