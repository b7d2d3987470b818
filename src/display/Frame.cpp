#include "display/Frame.h"

#include <utility>

#include "display/FrameLedger.h"
#include "display/TaskQueue.h"
#include "display/Wlroots.h"

namespace tromelo {

Frame::Frame(Content content, wlr_buffer* buffer, std::shared_ptr<FrameSync> sync,
             std::shared_ptr<TaskQueue> queue, std::weak_ptr<FrameLedger> ledger)
    : content_(std::move(content)),
      queue_(std::move(queue)),
      ledger_(std::move(ledger)),
      buffer_(wlr_buffer_lock(buffer)),
      sync_(std::move(sync)) {}

Frame::~Frame() {
  releaseBuffer();
  markDiscarded();
}

std::shared_ptr<FrameSync> Frame::sync() const {
  const std::scoped_lock lock(mutex_);
  return sync_;
}

void Frame::releaseBuffer() {
  const std::scoped_lock lock(mutex_);
  sync_.reset();
  if (wlr_buffer* buffer = std::exchange(buffer_, nullptr))
    queue_->post([buffer] { wlr_buffer_unlock(buffer); });
}

std::shared_ptr<Frame> Frame::secondReader(Reporter reporter) {
  const std::scoped_lock lock(mutex_);
  if (!buffer_) return nullptr;
  const bool reports = reporter == Reporter::other && !std::exchange(isSettled_, true);
  auto second = std::make_shared<Frame>(content_, buffer_, sync_, queue_, ledger_);
  second->isSettled_ = !reports;
  return second;
}

void Frame::readLater(std::shared_ptr<Frame> frame, Reporter reporter,
                      std::function<void(std::shared_ptr<Frame>)> take) {
  TaskQueue& queue = *frame->queue_;
  queue.postUnlessClosed([frame = std::move(frame), reporter, take = std::move(take)] {
    take(frame->secondReader(reporter));
  });
}

void Frame::answerCallbacks(std::chrono::nanoseconds at) {
  post([sequence = content_.sequence, at](FrameLedger& ledger) { ledger.called(sequence, at); });
}

void Frame::markShown(const Presentation& presentation) {
  const std::scoped_lock lock(mutex_);
  if (std::exchange(isSettled_, true)) return;
  post([sequence = content_.sequence, presentation](FrameLedger& ledger) {
    ledger.shown(sequence, presentation);
  });
}

void Frame::markDiscarded() {
  const std::scoped_lock lock(mutex_);
  if (std::exchange(isSettled_, true)) return;
  post([sequence = content_.sequence](FrameLedger& ledger) { ledger.discarded(sequence); });
}

template <typename Task>
void Frame::post(Task task) {
  queue_->postUnlessClosed([ledger = ledger_, task] {
    if (const auto open = ledger.lock()) task(*open);
  });
}

}  // namespace tromelo
