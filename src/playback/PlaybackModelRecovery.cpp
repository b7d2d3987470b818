#include <utility>

#include "platform/Clock.h"
#include "platform/FilePath.h"
#include "platform/NumberText.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

constexpr double kSoon = 60;  // seconds

}  // namespace

EngineWatch::Engine PlaybackModel::watchedEngine() {
  return {.shouldPlay =
              [this] {
                return isLoaded_ && !isPaused_ && !isAtEnd_ && !isShuttingDown_ &&
                       facts_.hasPicture() && engine_.hasHandle();
              },
          .ask =
              [this](const std::function<void()>& answered) {
                // Its output's thread is asked for it.
                engine_.readProperty("display-width", [answered](const auto&) { answered(); });
              },
          .hangs = [this] { recover(); },
          .stands = [this] { lostSound_.filmStands(); }};
}

void PlaybackModel::handle(const event::VideoDeviceLost&) { recover(); }

/// In a new engine: one that hangs can't be told anything, and one whose output has lost its device
/// draws no more. A film that does it again soon is given up.
void PlaybackModel::recover() {
  const bool isSoon = clock_.now() - recoveredAt_ < kSoon;
  const bool isHopeless = !currentPath_ || (recovered_ == currentPath_ && isSoon);
  recovered_ = currentPath_;
  recoveredAt_ = clock_.now();
  const PlayQueue queue = queue_;
  const double position = position_;
  const bool isPaused = isPaused_;
  filmKeeper_.keep();
  trial_.ended();
  replaceEngine();
  if (isHopeless || !engine_.hasHandle()) return giveUp();
  player().replaceWindow();
  reload(queue, position, isPaused);
}

void PlaybackModel::replaceEngine() {
  const bool isFullscreen = isFullscreen_;
  lostSound_.fileEnded();
  engine_.terminate([] {});
  isLoaded_ = false;
  queue_ = PlayQueue();
  unmoved_ = 0;
  queueMeanwhile_.reset();
  startEngine();
  settings_.apply(engine_);
  if (isPrivate_) engine_.setLogging(false);
  for (const auto& [name, value] : {std::pair("volume", numberText(volume_)),
                                    {"mute", flagText(isMuted_)},
                                    {"speed", numberText(speed_)},
                                    {"loop-file", isLooping_ ? "inf" : "no"},
                                    {"loop-playlist", isRepeatingAll_ ? "inf" : "no"},
                                    {"fullscreen", flagText(isFullscreen)}})
    engine_.setProperty(name, value);
  subtitlePlace_.reset();
  setSubtitleLift(subtitleLift_);
}

void PlaybackModel::reload(const PlayQueue& queue, double position, bool isPaused) {
  const qsizetype current = currentIndex(queue).value_or(0);
  progress_ = QueueProgress();
  progress_.opened();
  load(fileUrlFromPath(*recovered_), "replace", -1, position);
  setPause(isPaused);
  for (qsizetype i = 0; i < queue.size(); ++i) {
    if (i == current) continue;
    progress_.appended();
    const bool isBefore = i < current;
    load(fileUrlFromPath(queue[i].file), isBefore ? "insert-at" : "append", isBefore ? i : -1, {});
  }
}

void PlaybackModel::giveUp() {
  const QString message =
      tr("Could not play %1: %2")
          .arg(title_, tr("the graphics card stopped answering; update its driver."));
  reportPlaybackError(message);
  player().setAwaitingVideo(false);
  player().hasWindow() ? player().close() : player().showLibrary();
}

}  // namespace tromelo
