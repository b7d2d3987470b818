#include "display/PictureNode.h"

#include <QQuickWindow>
#include <QSGRendererInterface>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace tromelo {

namespace {

bool drawsInSoftware(const QQuickWindow& window) {
  return window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

}  // namespace

PicturePlacement placePicture(QSize picture, QSizeF item, qreal devicePixelRatio) {
  const QSizeF available(std::round(item.width() * devicePixelRatio),
                         std::round(item.height() * devicePixelRatio));
  if (picture.isEmpty() || available.isEmpty()) return {};
  const QSizeF fitted = QSizeF(picture).scaled(available, Qt::KeepAspectRatio);
  const bool isExact = std::abs(fitted.width() - picture.width()) < 0.5 &&
                       std::abs(fitted.height() - picture.height()) < 0.5;
  const QSizeF size = isExact ? QSizeF(picture) : fitted;
  QPointF corner((available.width() - size.width()) / 2, (available.height() - size.height()) / 2);
  if (isExact) corner = QPointF(std::floor(corner.x()), std::floor(corner.y()));
  return {QRectF(corner / devicePixelRatio, size / devicePixelRatio), isExact};
}

PictureNode::PictureNode(QQuickWindow* window, std::shared_ptr<SceneItemSink> sink)
    : window_(window), sink_(std::move(sink)) {
  sink_->rewind();
  // Direct: both come on the render thread.
  connect(window, &QQuickWindow::beforeRendering, this, &PictureNode::upload, Qt::DirectConnection);
  connect(window, &QQuickWindow::frameSwapped, this, &PictureNode::swapped, Qt::DirectConnection);
}

PictureNode::~PictureNode() { removeAllChildNodes(); }

void PictureNode::synchronize(QSizeF size) {
  takePicture();
  if (image_) place(size);
}

void PictureNode::takePicture() {
  auto picture = sink_->take();
  if (!picture) return;
  if (picture->frame) {
    show(std::move(picture->frame), picture->damage);
    return;
  }
  sink_->setShowing(nullptr);
  removeAllChildNodes();
  image_.reset();
  if (frame_) replaced_.push_back(std::exchange(frame_, nullptr));
  needsUpload_ = false;
}

void PictureNode::show(std::shared_ptr<Frame> frame, const QRegion& damage) {
  FrameTexture* texture = textureFor(*frame);
  QSGTexture* handle = texture->prepare(window_, *frame);
  if (!handle) return sink_->refused();  // the picture before stays
  if (!image_) {
    image_.reset(window_->createImageNode());
    image_->setFlag(QSGNode::OwnedByParent, false);
  }
  image_->setTexture(handle);
  // A scene without OpenGL looks at the texture at once.
  if (!image_->parent()) appendChildNode(image_.get());
  if (frame_) replaced_.push_back(std::move(frame_));
  frame_ = std::move(frame);
  sink_->setShowing(frame_);
  texture_ = texture;
  damage_ += damage;
  needsUpload_ = true;
  awaitsSwap_ = true;
}

FrameTexture* PictureNode::textureFor(const Frame& frame) {
  const bool isDmabuf = std::holds_alternative<DmabufPixels>(frame.content().buffer->pixels);
  auto& texture = isDmabuf ? dmabuf_ : shm_;
  if (texture) return texture.get();
  if (isDmabuf)
    texture = createDmabufTextures();
  else
    texture = drawsInSoftware(*window_) ? createImageTexture() : createShmTexture();
  return texture.get();
}

void PictureNode::place(QSizeF size) {
  const Frame::Content& content = frame_->content();
  const auto placement = placePicture(content.size, size, window_->effectiveDevicePixelRatio());
  const bool isUnscaled = placement.isExact && content.source.size() == QSizeF(content.size);
  image_->setRect(placement.rect);
  image_->setSourceRect(content.source);
  image_->setFiltering(isUnscaled ? QSGTexture::Nearest : QSGTexture::Linear);
}

void PictureNode::upload() {
  if (!std::exchange(needsUpload_, false)) return;
  window_->beginExternalCommands();
  texture_->update(*frame_, std::exchange(damage_, QRegion()));
  window_->endExternalCommands();
}

void PictureNode::swapped() {
  replaced_.clear();
  if (!frame_ || !std::exchange(awaitsSwap_, false)) return;
  frame_->markShown({std::chrono::steady_clock::now().time_since_epoch(), {}});
  sink_->shown();
}

}  // namespace tromelo
