#pragma once

#include <QRegion>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "display/VideoSink.h"

class QObject;

namespace tromelo {

/// Hands the engine's newest picture to an item of a Qt Quick scene. What the scene has not taken
/// when the next one comes is dropped.
class SceneItemSink final : public VideoSink {
 public:
  struct Picture {
    std::shared_ptr<Frame> frame;  // none: the engine took its picture away
    QRegion damage;                // against the picture taken before
  };
  struct Callbacks {
    std::function<void()> committed;
    std::function<void()> firstShown;
    std::function<void()> refused;
  };

  /// Main thread. The callbacks are posted to `receiver`, on its thread.
  SceneItemSink(QObject* receiver, Callbacks callbacks);

  /// Main thread. No callback comes any more.
  void disconnect();

  void commit(std::shared_ptr<Frame> frame) override;

  /// Any thread: something waits to be taken.
  bool hasPicture() const;
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
  void post(const std::function<void()>& callback);

  const Callbacks callbacks_;
  mutable std::mutex mutex_;
  QObject* receiver_;
  std::optional<Picture> picture_;
  std::shared_ptr<Frame> showing_;
  bool hasShown_ = false;
};

}  // namespace tromelo
