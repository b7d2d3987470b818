#include "display/VideoSink.h"

#include <QMetaObject>
#include <QObject>
#include <QSGNode>
#include <utility>

namespace tromelo {

VideoSink::VideoSink(QObject* receiver, Events events)
    : events_(std::move(events)), mainThread_(std::make_shared<MainThread>(receiver)) {}

VideoSink::VideoSink() : VideoSink(nullptr, {}) {}

VideoSink::~VideoSink() = default;

void VideoSink::disconnect() { mainThread_->close(); }

void VideoSink::setPlace(const Place&) {}

QRectF VideoSink::hole() const { return {}; }

QSGNode* VideoSink::updateNode(QSGNode* node, QQuickItem&) {
  delete node;
  return nullptr;
}

void VideoSink::tell(std::function<void()> Events::* event) {
  if (events_.*event) mainThread_->run(events_.*event);
}

void VideoSink::MainThread::run(std::function<void()> task) {
  const std::scoped_lock lock(mutex_);
  if (receiver_) QMetaObject::invokeMethod(receiver_, std::move(task), Qt::QueuedConnection);
}

void VideoSink::MainThread::close() {
  const std::scoped_lock lock(mutex_);
  receiver_ = nullptr;
}

}  // namespace tromelo
