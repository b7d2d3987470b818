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

namespace tromelo {

class TaskQueue;

/// Keeps the engine from drawing into a buffer. Released on the display's thread, whichever thread
/// drops it.
class BufferLock {
 public:
  /// Display's thread.
  BufferLock(wlr_buffer* buffer, std::shared_ptr<TaskQueue> queue);
  ~BufferLock();
  BufferLock(const BufferLock&) = delete;
  BufferLock& operator=(const BufferLock&) = delete;

 private:
  wlr_buffer* buffer_;
  std::shared_ptr<TaskQueue> queue_;
};

/// One picture that the engine committed. Any thread.
class Frame {
 public:
  struct Content {
    std::uint64_t sequence = 0;  // rises with each picture of its surface
    std::shared_ptr<const ClientBuffer> buffer;
    QRectF source;   // the part of the buffer to show, in its pixels
    QSize size;      // what it is to be shown as, in device pixels
    QRegion damage;  // against the picture before, in pixels of the buffer
    bool opaque = false;
  };
  /// Called once, on any thread: the time of the swap that showed the frame (steady clock), or
  /// nothing when it was never shown.
  using Report = std::function<void(std::optional<std::chrono::nanoseconds> shownAt)>;

  Frame(Content content, std::unique_ptr<BufferLock> lock, Report report);
  ~Frame();
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

  const Content& content() const { return content_; }
  /// The pixels have been copied; the engine may draw there again.
  void releaseBuffer();
  void markShown(std::chrono::nanoseconds at);

 private:
  const Content content_;
  std::mutex mutex_;
  std::unique_ptr<BufferLock> lock_;
  Report report_;
};

}  // namespace tromelo
