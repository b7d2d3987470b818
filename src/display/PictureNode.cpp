#include "display/PictureNode.h"

#include <QQuickWindow>
#include <QSGRendererInterface>
#include <chrono>
#include <utility>

#include "color-management-v1-client-protocol.h"
#include "display/GlFence.h"
#include "display/PicturePlacement.h"

namespace tromelo {

namespace {

bool drawsInSoftware(const QQuickWindow& window) {
  return window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

/// None for what a scene draws as it is.
std::optional<HdrImageNode::Signal> signalOf(const std::optional<SurfaceColor>& color) {
  if (!color) return {};
  if (color->transfer == WP_COLOR_MANAGER_V1_TRANSFER_FUNCTION_ST2084_PQ)
    return HdrImageNode::Signal::pq;
  if (color->transfer == WP_COLOR_MANAGER_V1_TRANSFER_FUNCTION_HLG)
    return HdrImageNode::Signal::hlg;
  if (color->primaries == WP_COLOR_MANAGER_V1_PRIMARIES_DISPLAY_P3)
    return HdrImageNode::Signal::displayP3;
  return {};
}

}  // namespace

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
  if (frame_) place(size);
}

void PictureNode::takePicture() {
  auto picture = sink_->take();
  if (!picture) return;
  if (picture->frame) {
    show(std::move(picture->frame), picture->damage);
    return;
  }
  sink_->setShowing(nullptr);
  clear();
  if (frame_) replaced_.push_back(std::exchange(frame_, nullptr));
  needsUpload_ = false;
}

void PictureNode::show(std::shared_ptr<Frame> frame, const QRegion& damage) {
  FrameTexture* texture = textureFor(*frame);
  QSGTexture* handle = texture->prepare(window_, *frame);
  if (!handle) return sink_->refused();  // the picture before stays
  const bool canMap = !drawsInSoftware(*window_);
  drawWith(handle, canMap ? signalOf(frame->content().color) : std::nullopt);
  if (frame_) replaced_.push_back(std::move(frame_));
  frame_ = std::move(frame);
  sink_->setShowing(frame_);
  texture_ = texture;
  damage_ += damage;
  needsUpload_ = true;
  awaitsSwap_ = true;
}

void PictureNode::drawWith(QSGTexture* handle, const std::optional<HdrImageNode::Signal>& signal) {
  handle_ = handle;
  if (signal) {
    if (hdr_ && hdr_->signal() == *signal) return;
    clear();
    hdr_ = std::make_unique<HdrImageNode>(*signal);
    hdr_->setFlag(QSGNode::OwnedByParent, false);
    return;
  }
  if (hdr_) clear();
  if (!image_) {
    image_.reset(window_->createImageNode());
    image_->setFlag(QSGNode::OwnedByParent, false);
  }
  // A scene without OpenGL looks at the texture at once.
  image_->setTexture(handle);
  if (!image_->parent()) appendChildNode(image_.get());
}

void PictureNode::clear() {
  removeAllChildNodes();
  image_.reset();
  hdr_.reset();
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
  if (hdr_) {
    hdr_->setPicture(handle_, placement.rect, content.source);
    if (!hdr_->parent()) appendChildNode(hdr_.get());
    return;
  }
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
  const auto sync = frame_ ? frame_->sync() : nullptr;
  if (sync) sync->readUntil(drawingFence());
  if (!frame_ || !std::exchange(awaitsSwap_, false)) return;
  frame_->markShown({std::chrono::steady_clock::now().time_since_epoch(), {}});
  sink_->shown();
}

}  // namespace tromelo
