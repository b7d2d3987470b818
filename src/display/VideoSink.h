#pragma once

#include <functional>
#include <memory>
#include <mutex>

#include "display/Frame.h"

class QObject;
class QQuickItem;
class QSGNode;

namespace tromelo {

/// Where the pictures of one engine window go. The item that shows the window and the display's
/// thread hold a sink together, and the last of them ends it, on any thread.
///
/// A sink answers for each frame: it marks it shown, or drops it, which discards it, and releases
/// its buffer as soon as nothing reads that any more. It needn't hurry: an engine whose sink is
/// busy is answered by the display.
class VideoSink {
 public:
  struct Events {
    std::function<void()> committed;   // another picture waits, or none is there any more
    std::function<void()> firstShown;  // a picture is on its way to the screen, for the first time
    std::function<void()> refused;  // a picture can't be shown, and no other of its kind of memory
  };

  /// Main thread. The events are posted to `receiver`, on its thread.
  explicit VideoSink(QObject* receiver = nullptr, Events events = {});
  virtual ~VideoSink();
  VideoSink(const VideoSink&) = delete;
  VideoSink& operator=(const VideoSink&) = delete;

  /// Main thread: whoever received events is about to go.
  void disconnect();

  /// Display's thread; must not block. Supersedes every frame that isn't shown yet; none when the
  /// engine took its picture away. Not every frame of a window need come here.
  virtual void commit(std::shared_ptr<Frame> frame) = 0;

  /// What the scene draws for `item`, and the sink's occasion to see where that is: called after
  /// each `committed` and whenever the item changes its size or scale. Takes over `node`, which the
  /// sink gave before. On the scene's render thread, while the main thread waits. The first
  /// implementation draws nothing.
  virtual QSGNode* updateNode(QSGNode* node, QQuickItem& item);

 protected:
  /// Any thread.
  void tell(std::function<void()> Events::* event);

 private:
  const Events events_;
  std::mutex mutex_;
  QObject* receiver_;
};

}  // namespace tromelo
