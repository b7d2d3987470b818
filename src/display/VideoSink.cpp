#include "display/VideoSink.h"

#include <QMetaObject>
#include <QObject>
#include <QSGNode>
#include <utility>

namespace tromelo {

VideoSink::VideoSink(QObject* receiver, Events events)
    : events_(std::move(events)), receiver_(receiver) {}

VideoSink::~VideoSink() = default;

void VideoSink::disconnect() {
  const std::scoped_lock lock(mutex_);
  receiver_ = nullptr;
}

QSGNode* VideoSink::updateNode(QSGNode* node, QQuickItem&) {
  delete node;
  return nullptr;
}

void VideoSink::tell(std::function<void()> Events::* event) {
  const std::scoped_lock lock(mutex_);
  if (receiver_ && events_.*event)
    QMetaObject::invokeMethod(receiver_, events_.*event, Qt::QueuedConnection);
}

}  // namespace tromelo
