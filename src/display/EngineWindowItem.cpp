#include "display/EngineWindowItem.h"

#include <QEvent>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <utility>

#include "display/PictureNode.h"
#include "display/SceneItemSink.h"
#include "display/VideoSink.h"

namespace tromelo {

namespace {

bool canShowPictures(const QQuickWindow& window) {
  const auto api = window.rendererInterface()->graphicsApi();
  return api == QSGRendererInterface::OpenGL || api == QSGRendererInterface::Software;
}

}  // namespace

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
    sink_ = std::make_shared<SceneItemSink>(
        this, SceneItemSink::Callbacks{.committed =
                                           [this] {
                                             update();
                                             Q_EMIT pictureCommitted();
                                           },
                                       .firstShown = [this] { Q_EMIT firstFrameShown(); },
                                       .refused = [this] { Q_EMIT pictureRefused(); }});
    if (FrameSource* frames = source()) frames->setSink(sink_);
    updateExposure();
  }
  update();
}

FrameSource* EngineWindowItem::source() const {
  return dynamic_cast<FrameSource*>(engineWindow_.data());
}

void EngineWindowItem::detach() {
  if (sink_) sink_->disconnect();
  sink_.reset();
  wasExposed_ = false;
  if (FrameSource* frames = source()) frames->setSink(nullptr);
}

QSGNode* EngineWindowItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  auto* picture = static_cast<PictureNode*>(node);
  if (picture && picture->sink() != sink_.get()) delete std::exchange(picture, nullptr);
  if (!sink_ || !canShowPictures(*window())) {
    delete picture;
    return nullptr;
  }
  if (!picture) picture = new PictureNode(window(), sink_);  // the scene graph owns it
  picture->synchronize(size());
  return picture;
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
  FrameSource* frames = source();
  if (frames && wasExposed_) frames->setExposed(isExposed);
}

}  // namespace tromelo
