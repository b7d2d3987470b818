#include "display/EngineWindowItem.h"

#include <qpa/qplatformwindow_p.h>
#include <QEvent>
#include <QQuickWindow>
#include <QSGNode>
#include <utility>

namespace tromelo {

namespace {

/// The window's surface on a Wayland host; none elsewhere, or while there is none.
wl_surface* hostSurfaceOf(QWindow& window) {
  auto* host = window.nativeInterface<QNativeInterface::Private::QWaylandWindow>();
  return host ? host->surface() : nullptr;
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
    sink_ = window->sinkKind().create(this, {.committed =
                                                 [this] {
                                                   update();
                                                   Q_EMIT pictureCommitted();
                                                 },
                                             .firstShown = [this] { Q_EMIT firstFrameShown(); },
                                             .refused = [this] { Q_EMIT pictureRefused(); },
                                             .moved = [this] { adoptHole(); },
                                             .refusedByHost = [this] { Q_EMIT refusedByHost(); }});
    window->setSink(sink_);
    connect(window, &EngineWindow::sizeChanged, this, &EngineWindowItem::updatePlace);
    updateExposure();
    updatePlace();
  }
  update();
}

void EngineWindowItem::detach() {
  if (sink_) sink_->disconnect();
  sink_.reset();
  adoptHole();
  nodeIsOfAnotherSink_ = true;
  wasExposed_ = false;
  if (!engineWindow_) return;
  engineWindow_->disconnect(this);
  engineWindow_->setSink(nullptr);
}

QSGNode* EngineWindowItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  if (std::exchange(nodeIsOfAnotherSink_, false)) delete std::exchange(node, nullptr);
  return sink_ ? sink_->updateNode(node, *this) : nullptr;
}

void EngineWindowItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(newGeometry, oldGeometry);
  if (newGeometry.size() != oldGeometry.size()) update();
  updatePlace();
}

void EngineWindowItem::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemSceneChange) watch(data.window);
  if (change == ItemVisibleHasChanged) updateExposure();
  if (change == ItemDevicePixelRatioHasChanged) {
    update();
    updatePlace();
  }
  QQuickItem::itemChange(change, data);
}

bool EngineWindowItem::eventFilter(QObject* watched, QEvent* event) {
  const bool isHandled = QQuickItem::eventFilter(watched, event);
  if (event->type() == QEvent::Expose) {
    QMetaObject::invokeMethod(this, &EngineWindowItem::updateExposure, Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &EngineWindowItem::updatePlace, Qt::QueuedConnection);
  }
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
  // Where the host shows the picture, the item draws nothing itself.
  const bool isExposed = watched_ && watched_->isExposed() && (isVisible() || !hole_.isEmpty());
  wasExposed_ = wasExposed_ || isExposed;
  if (engineWindow_ && wasExposed_) engineWindow_->setExposed(isExposed);
}

void EngineWindowItem::setSceneOpacity(qreal opacity) {
  if (std::exchange(sceneOpacity_, opacity) != opacity) updatePlace();
}

void EngineWindowItem::setIsRead(bool isRead) {
  if (std::exchange(isRead_, isRead) == isRead) return;
  updatePlace();
  update();
}

/// Qt ends the surface with a window that is hidden, and ours must not be its child any more when
/// the next one comes.
void EngineWindowItem::followHostSurface() {
  auto* host =
      watched_ ? watched_->nativeInterface<QNativeInterface::Private::QWaylandWindow>() : nullptr;
  if (!host || hostWindow_ == host) return;
  hostWindow_ = host;
  connect(host, &QNativeInterface::Private::QWaylandWindow::surfaceDestroyed, this,
          &EngineWindowItem::updatePlace);
}

void EngineWindowItem::updatePlace() {
  if (!sink_) return;
  followHostSurface();
  const QSize picture = engineWindow_ ? engineWindow_->size() : QSize();
  sink_->setPlace({
      .parent = watched_ ? hostSurfaceOf(*watched_) : nullptr,
      .room = mapRectToScene(boundingRect()),
      .devicePixelRatio = watched_ ? watched_->effectiveDevicePixelRatio() : 1,
      .picture = picture,
      .opacity = sceneOpacity_,
      .isRead = isRead_,
      .afterDrawing = [this](auto then) { afterDrawing(std::move(then)); },
  });
  adoptHole();
}

/// The next swap may be of what was drawn before: the one after it isn't.
void EngineWindowItem::afterDrawing(std::function<void()> then) {
  if (!watched_) return;
  const auto drawn = [this, then = std::move(then)] {
    connect(watched_, &QQuickWindow::frameSwapped, this, then,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    watched_->update();
  };
  connect(watched_, &QQuickWindow::frameSwapped, this, drawn,
          Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
  watched_->update();
}

void EngineWindowItem::adoptHole() {
  const QRectF hole = sink_ ? sink_->hole() : QRectF();
  if (std::exchange(hole_, hole) == hole) return;
  setVisible(hole.isEmpty());
  update();
  Q_EMIT holeChanged();
}

}  // namespace tromelo
