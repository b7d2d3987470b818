#include "films/FilmMemory.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

void PlaybackModel::noteMove() {
  // Before it plays, the position is one that it is on the way to.
  if (isLoaded_ && hasStarted_) filmKeeper_.moved(elapsed_);
  if (!isLoaded_) return;
  watch_.heard();
  lostSound_.filmMoves();
}

void PlaybackModel::setPositionShown(bool shown) {
  engine_.setQuiet(!shown);
  if (shown && isLoaded_) watch_.stopped();
}

void PlaybackModel::handle(const event::FramesStopped&) {
  if (isLoaded_) watch_.stopped();
}

void PlaybackModel::startOver() { seekTo(0); }

void PlaybackModel::setPrivate(bool isPrivate) {
  if (isPrivate_ == isPrivate) return;
  // What was seen until now is remembered, and what comes is not.
  if (isPrivate) filmKeeper_.keep();
  isPrivate_ = isPrivate;
  if (films_) films_->setPrivate(isPrivate);
  engine_.setLogging(!isPrivate);
}

}  // namespace tromelo
