#include "display/EngineWindowItem.h"

#include <QEvent>
#include <QQuickWindow>
#include <QSGNode>
#include <utility>

namespace tromelo {

EngineWindowItem::EngineWindowItem(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
  watch(window());  // the base's constructor has told only itself of it
}

EngineWindowItem::~EngineWindowItem() { detach(); }

EngineWindow* EngineWindowItem::engineWindow() const { return engineWindow_; }

void EngineWindowItem::setEngineWindow(EngineWindow* window) {
  if (engineWindow_ == window && (window || !sink_)) return;
  detach();
  engineWindow_ = window;
  if (window) {
    sink_ = window->sinkKind().create(this, {.committed =
                                                 [this] {
                                                   update();
                                                   Q_EMIT pictureCommitted();
                                                 },
                                             .firstShown = [this] { Q_EMIT firstFrameShown(); },
                                             .refused = [this] { Q_EMIT pictureRefused(); }});
    window->setSink(sink_);
    updateExposure();
  }
  update();
}

void EngineWindowItem::detach() {
  if (sink_) sink_->disconnect();
  sink_.reset();
  nodeIsOfAnotherSink_ = true;
  wasExposed_ = false;
  if (engineWindow_) engineWindow_->setSink(nullptr);
}

QSGNode* EngineWindowItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  if (std::exchange(nodeIsOfAnotherSink_, false)) delete std::exchange(node, nullptr);
  return sink_ ? sink_->updateNode(node, *this) : nullptr;
}

void EngineWindowItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(newGeometry, oldGeometry);
  if (newGeometry.size() != oldGeometry.size()) update();
}

void EngineWindowItem::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemSceneChange) watch(data.window);
  if (change == ItemVisibleHasChanged) updateExposure();
  if (change == ItemDevicePixelRatioHasChanged) update();
  QQuickItem::itemChange(change, data);
}

bool EngineWindowItem::eventFilter(QObject* watched, QEvent* event) {
  const bool isHandled = QQuickItem::eventFilter(watched, event);
  if (event->type() == QEvent::Expose)
    QMetaObject::invokeMethod(this, &EngineWindowItem::updateExposure, Qt::QueuedConnection);
  return isHandled;
}

void EngineWindowItem::watch(QQuickWindow* window) {
  if (watched_) watched_->removeEventFilter(this);
  watched_ = window;
  if (window) window->installEventFilter(this);
  updateExposure();
}

/// The player window is often made after the engine's: not having been seen yet doesn't count.
void EngineWindowItem::updateExposure() {
  const bool isExposed = watched_ && watched_->isExposed() && isVisible();
  wasExposed_ = wasExposed_ || isExposed;
  if (engineWindow_ && wasExposed_) engineWindow_->setExposed(isExposed);
}

}  // namespace tromelo
