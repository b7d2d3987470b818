#pragma once

#include <QRectF>
#include <QRegion>
#include <QSize>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "display/ClientBuffer.h"
#include "display/FrameSync.h"
#include "display/HostImageDescription.h"

namespace tromelo {

class FrameLedger;
class TaskQueue;

/// How a frame came to the screen.
struct Presentation {
  /// What a host tells of it, to be passed on as it is.
  struct Retrace {
    std::chrono::nanoseconds refresh{};  // 0: not known
    std::uint64_t sequence = 0;
    std::uint32_t flags = 0;  // wp_presentation_feedback.kind
  };

  std::chrono::nanoseconds time{};  // steady clock
  std::optional<Retrace> retrace;   // none: the display counts retraces of its own screen
};

/// One committed picture of the engine's, which may not draw into the buffer meanwhile. A sink
/// says here what became of it, from any thread; nothing of that blocks. A frame may outlive its
/// window and its display.
class Frame {
 public:
  struct Content {
    std::uint64_t sequence = 0;  // rises with each picture of its surface
    std::shared_ptr<const ClientBuffer> buffer;
    QRectF source;   // the part of the buffer to show, in its pixels
    QSize size;      // what it is to be shown as, in device pixels
    QRegion damage;  // against the picture before, in pixels of the buffer
    bool opaque = false;
    std::optional<SurfaceColor> color;  // what the engine has said of its colours
  };

  /// Display's thread. Locks `buffer`, and unlocks it on that thread, whichever drops the frame.
  Frame(Content content, wlr_buffer* buffer, std::shared_ptr<FrameSync> sync,
        std::shared_ptr<TaskQueue> queue, std::weak_ptr<FrameLedger> ledger);
  /// Releases the buffer, and discards the frame if it wasn't shown.
  ~Frame();
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

  const Content& content() const { return content_; }
  /// How readers are to go about it; none: the kernel makes the GPUs wait for each other, or the
  /// buffer was released.
  std::shared_ptr<FrameSync> sync() const;

  /// The same picture for somebody who reads it too: the engine gets its buffer when both have
  /// released it. Display's thread. What becomes of the picture is told by this frame, or by the
  /// other one alone.
  enum class Reporter { thisFrame, other };
  std::shared_ptr<Frame> secondReader(Reporter reporter);
  /// Gives it to `take` on the display's thread; nothing where the display or the buffer is gone.
  static void readLater(std::shared_ptr<Frame> frame, Reporter reporter,
                        std::function<void(std::shared_ptr<Frame>)> take);

  /// Nobody reads the buffer any more; the engine may draw there again.
  void releaseBuffer();
  /// The engine may draw its next picture: answers the frame callbacks of this commit and of those
  /// before it. For sinks whose host asks for pictures; the others leave it to markShown().
  void answerCallbacks(std::chrono::nanoseconds at);
  /// Answers the frame callbacks too. Only the first of this and markDiscarded() counts.
  void markShown(const Presentation& presentation);
  /// It will never be seen.
  void markDiscarded();

 private:
  template <typename Task>
  void post(Task task);

  const Content content_;
  const std::shared_ptr<TaskQueue> queue_;
  const std::weak_ptr<FrameLedger> ledger_;
  mutable std::mutex mutex_;
  wlr_buffer* buffer_;  // locked; none: released
  std::shared_ptr<FrameSync> sync_;
  bool isSettled_ = false;
};

}  // namespace tromelo
