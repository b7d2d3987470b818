#include "display/Frame.h"

#include <utility>

#include "display/TaskQueue.h"
#include "display/Wlroots.h"

namespace tromelo {

BufferLock::BufferLock(wlr_buffer* buffer, std::shared_ptr<TaskQueue> queue)
    : buffer_(wlr_buffer_lock(buffer)), queue_(std::move(queue)) {}

BufferLock::~BufferLock() {
  queue_->post([buffer = buffer_] { wlr_buffer_unlock(buffer); });
}

Frame::Frame(Content content, std::unique_ptr<BufferLock> lock, Report report)
    : content_(std::move(content)), lock_(std::move(lock)), report_(std::move(report)) {}

Frame::~Frame() {
  if (report_) report_(std::nullopt);
}

void Frame::releaseBuffer() {
  const std::scoped_lock lock(mutex_);
  lock_.reset();
}

void Frame::markShown(std::chrono::nanoseconds at) {
  const std::scoped_lock lock(mutex_);
  if (const Report report = std::exchange(report_, nullptr)) report(at);
}

}  // namespace tromelo
