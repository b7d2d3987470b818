#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickItem>

#include "overlay/PlayerOverlayInput.h"

namespace tromelo {

/// What the player asks of its overlay's view, which PlayerOverlayView.qml fills in. Main thread
/// only.
class PlayerOverlayItem : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tromelo::PlayerOverlayInput* input MEMBER input_ REQUIRED)
  /// Holds what fades together.
  Q_PROPERTY(QQuickItem* chromeItem MEMBER chromeItem_ REQUIRED)
  Q_PROPERTY(QQuickItem* controls MEMBER controls_ REQUIRED)

 public:
  using QQuickItem::QQuickItem;

  PlayerOverlayInput& input() const { return *input_; }
  QQuickItem& chromeItem() const { return *chromeItem_; }
  QQuickItem& controls() const { return *controls_; }

 private:
  QPointer<PlayerOverlayInput> input_;
  QPointer<QQuickItem> chromeItem_;
  QPointer<QQuickItem> controls_;
};

}  // namespace tromelo
