#pragma once

#include <QRegion>
#include <memory>
#include <mutex>
#include <optional>

#include "display/VideoSink.h"

namespace tromelo {

/// Makes the engine's newest picture a node of a Qt Quick scene, on any host. What the scene has
/// not taken when the next one comes is dropped. Shows nothing in a scene that is drawn neither
/// with OpenGL nor by the processor.
class SceneItemSink final : public VideoSink, public std::enable_shared_from_this<SceneItemSink> {
 public:
  struct Picture {
    std::shared_ptr<Frame> frame;  // none: the engine took its picture away
    QRegion damage;                // against the picture taken before
  };
  using VideoSink::VideoSink;

  void commit(std::shared_ptr<Frame> frame) override;
  QSGNode* updateNode(QSGNode* node, QQuickItem& item) override;

  /// Any thread: keeps nothing of what it was given.
  void forget();

  /// Render thread.
  std::optional<Picture> take();
  /// Render thread: what the scene shows from here on, which is kept; none: nothing.
  void setShowing(std::shared_ptr<Frame> frame);
  /// Render thread: who takes from here on shows nothing yet. What was kept waits again.
  void rewind();
  /// Render thread: a picture was swapped to the screen.
  void shown();
  /// Render thread: the scene can't show what it took.
  void refused();

 private:
  std::mutex mutex_;
  std::optional<Picture> picture_;
  std::shared_ptr<Frame> showing_;
  bool hasShown_ = false;  // render thread
};

}  // namespace tromelo
