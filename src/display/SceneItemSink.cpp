#include "display/SceneItemSink.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <utility>

#include "display/PictureNode.h"
#include "display/PixelFormat.h"
#include "display/VideoSinkKind.h"
#include "platform/Timeline.h"

namespace tromelo {

namespace {

bool canShowPictures(const QQuickWindow& window) {
  const auto api = window.rendererInterface()->graphicsApi();
  return api == QSGRendererInterface::OpenGL || api == QSGRendererInterface::Software;
}

}  // namespace

/// A host needs nothing for it; dmabufs take a scene that is drawn with OpenGL.
std::optional<VideoSinkKind> sceneItemSink(const VideoSinkHost& host, PictureWay&) {
  VideoSinkKind kind{
      .name = QStringLiteral("an item of the scene"),
      .way = {},
      .report = {},
      .canBeSampled = true,
      .shmFormats = {},
      .dmabuf = DmabufSupport::query(),
      .syncDevice = nullptr,
      .announceMore = {},
      .create = [](QObject* receiver, VideoSink::Events events) -> std::shared_ptr<VideoSink> {
        return std::make_shared<SceneItemSink>(receiver, std::move(events));
      },
  };
  for (const PixelFormat& format : kPixelFormats) kind.shmFormats.push_back(format.fourcc);
  if (kind.dmabuf && !host.drawsWithOpenGl()) kind.dmabuf.reset();
  return kind;
}

void SceneItemSink::commit(std::shared_ptr<Frame> frame) {
  Timeline::note("engine's first picture committed");
  const QRegion damage = frame ? frame->content().damage : QRegion();
  const std::scoped_lock lock(mutex_);
  const bool isWaiting = picture_.has_value();
  Picture picture{std::move(frame), damage};
  if (isWaiting) picture.damage += picture_->damage;
  picture_ = std::move(picture);
  if (!isWaiting) tell(&Events::committed);
}

QSGNode* SceneItemSink::updateNode(QSGNode* node, QQuickItem& item) {
  if (!canShowPictures(*item.window())) return VideoSink::updateNode(node, item);
  auto* picture = static_cast<PictureNode*>(node);
  // The scene graph owns it.
  if (!picture) picture = new PictureNode(item.window(), shared_from_this());
  picture->synchronize(item.size());
  return picture;
}

void SceneItemSink::forget() {
  std::shared_ptr<Frame> showing;
  std::optional<Picture> picture;  // both end without the lock
  const std::scoped_lock lock(mutex_);
  showing_.swap(showing);
  picture_.swap(picture);
}

std::optional<SceneItemSink::Picture> SceneItemSink::take() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(picture_, std::nullopt);
}

void SceneItemSink::setShowing(std::shared_ptr<Frame> frame) {
  const std::scoped_lock lock(mutex_);
  showing_.swap(frame);
}

void SceneItemSink::rewind() {
  const std::scoped_lock lock(mutex_);
  if (!picture_ && showing_) picture_ = Picture{showing_, {}};
}

void SceneItemSink::shown() {
  if (std::exchange(hasShown_, true)) return;
  Timeline::note("first picture drawn");
  tell(&Events::firstShown);
}

void SceneItemSink::refused() { tell(&Events::refused); }

}  // namespace tromelo
