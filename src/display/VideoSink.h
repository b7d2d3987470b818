#pragma once

#include <QRectF>
#include <QSize>
#include <functional>
#include <memory>
#include <mutex>

#include "display/Frame.h"

class QObject;
class QQuickItem;
class QSGNode;
struct wl_surface;

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
    /// Another picture waits, or none is there any more.
    std::function<void()> committed = {};
    /// A picture is on its way to the screen, for the first time.
    std::function<void()> firstShown = {};
    /// A picture can't be shown, and no other of its kind of memory.
    std::function<void()> refused = {};
    /// hole() is another, for no new place.
    std::function<void()> moved = {};
    /// The scene shows the pictures in the host's place.
    std::function<void()> refusedByHost = {};
  };

  /// Where the item that shows the pictures is.
  struct Place {
    wl_surface* parent = nullptr;  // of the window; none: no Wayland, or not on the screen
    QRectF room;                   // in the window, in its units
    qreal devicePixelRatio = 1;
    QSize picture;        // device pixels, as the engine draws it now; empty: nothing yet
    qreal opacity = 1;    // 0 to 1, of the whole scene
    bool isRead = false;  // something of the scene is drawn with the picture, glass for example
    /// Calls back on the main thread when the scene, as it is now or newer, is on the screen.
    std::function<void(std::function<void()>)> afterDrawing;
  };

  /// Main thread. The events are posted to `receiver`, on its thread.
  VideoSink(QObject* receiver, Events events);
  VideoSink();
  virtual ~VideoSink();
  VideoSink(const VideoSink&) = delete;
  VideoSink& operator=(const VideoSink&) = delete;

  /// Main thread: whoever received events is about to go.
  void disconnect();

  /// Main thread: when something of it is new; hole() may be another then. Sinks that draw in the
  /// scene need none of it.
  virtual void setPlace(const Place& place);
  /// Main thread: in the window, in its units, where the host shows the picture below the scene,
  /// which must leave it free. Empty while the scene draws the picture.
  virtual QRectF hole() const;

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
  /// The way to the main thread, for who must not hold the sink meanwhile.
  class MainThread {
   public:
    explicit MainThread(QObject* receiver) : receiver_(receiver) {}
    /// Any thread: runs `task` there, unless whoever received events is gone by then.
    void run(std::function<void()> task);
    void close();

   private:
    std::mutex mutex_;
    QObject* receiver_;
  };
  const std::shared_ptr<MainThread>& mainThread() const { return mainThread_; }

 private:
  const Events events_;
  const std::shared_ptr<MainThread> mainThread_;
};

}  // namespace tromelo
