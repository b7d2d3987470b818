#include "display/SceneItemSink.h"

#include <QMetaObject>
#include <QObject>
#include <utility>

namespace tromelo {

SceneItemSink::SceneItemSink(QObject* receiver, Callbacks callbacks)
    : callbacks_(std::move(callbacks)), receiver_(receiver) {}

void SceneItemSink::disconnect() {
  const std::scoped_lock lock(mutex_);
  receiver_ = nullptr;
}

void SceneItemSink::commit(std::shared_ptr<Frame> frame) {
  const QRegion damage = frame ? frame->content().damage : QRegion();
  const std::scoped_lock lock(mutex_);
  const bool isWaiting = picture_.has_value();
  Picture picture{std::move(frame), damage};
  if (isWaiting) picture.damage += picture_->damage;
  picture_ = std::move(picture);
  if (!isWaiting) post(callbacks_.committed);
}

bool SceneItemSink::hasPicture() const {
  const std::scoped_lock lock(mutex_);
  return picture_.has_value();
}

std::optional<SceneItemSink::Picture> SceneItemSink::take() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(picture_, std::nullopt);
}

void SceneItemSink::setShowing(std::shared_ptr<Frame> frame) {
  const std::scoped_lock lock(mutex_);
  showing_.swap(frame);
}

void SceneItemSink::rewind() {
  const std::scoped_lock lock(mutex_);
  if (!picture_ && showing_) picture_ = Picture{showing_, {}};
}

void SceneItemSink::shown() {
  const std::scoped_lock lock(mutex_);
  if (!std::exchange(hasShown_, true)) post(callbacks_.firstShown);
}

void SceneItemSink::refused() {
  const std::scoped_lock lock(mutex_);
  post(callbacks_.refused);
}

void SceneItemSink::post(const std::function<void()>& callback) {
  if (receiver_) QMetaObject::invokeMethod(receiver_, callback, Qt::QueuedConnection);
}

}  // namespace tromelo
