#pragma once

#include <memory>

#include "display/Frame.h"

namespace tromelo {

/// Where the engine's pictures go. A sink answers for each frame by marking it shown or by dropping
/// it, and must not assume that it gets every one. Nothing above it may assume that the picture can
/// be sampled.
class VideoSink {
 public:
  virtual ~VideoSink() = default;

  /// Display's thread; must not block. Supersedes every frame that isn't shown yet; none when the
  /// engine took its picture away.
  virtual void commit(std::shared_ptr<Frame> frame) = 0;
};

/// What gives frames to a sink. Main thread.
class FrameSource {
 public:
  virtual ~FrameSource() = default;

  /// Replaces the sink before; none takes it away. The source's newest frame that no sink has taken
  /// is handed over at once.
  virtual void setSink(std::shared_ptr<VideoSink> sink) = 0;
  /// Whether what the sink shows can be seen on the host. While it can't, the engine is told
  /// "suspended".
  virtual void setExposed(bool exposed) = 0;
};

}  // namespace tromelo
