#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickItem>

#include "display/EngineWindowItem.h"

namespace tromelo {

/// What the player window asks of its scene, which PlayerScene.qml fills in. Main thread only.
class PlayerSceneItem : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tromelo::EngineWindowItem* video MEMBER video_ REQUIRED)

 public:
  using QQuickItem::QQuickItem;

  EngineWindowItem& video() const { return *video_; }

 private:
  QPointer<EngineWindowItem> video_;
};

}  // namespace tromelo
