#include <utility>

#include "platform/Clock.h"
#include "platform/FilePath.h"
#include "platform/NumberText.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

constexpr double kSoon = 60;  // seconds

constexpr std::chrono::seconds kPlaying(5);
constexpr std::chrono::seconds kOpening(15);  // the graphics driver may be at work
constexpr std::chrono::seconds kTold(15);

}  // namespace

EngineWatch::Engine PlaybackModel::watchedEngine() {
  return {.patience =
              [this] {
                engine_.catchUp();  // what it has told already may wait
                if (isShuttingDown_ || !engine_.hasHandle()) return std::chrono::seconds(0);
                if (isOpening_) return kOpening;
                const bool plays = isLoaded_ && !isPaused_ && !isAtEnd_ && facts_.hasPicture();
                if (plays) return kPlaying;
                return engine_.owesAnswer() ? kTold : std::chrono::seconds(0);
              },
          .ask =
              [this](const std::function<void()>& answered) {
                // Its output's thread is asked for it.
                engine_.readProperty("display-width", [answered](const auto&) { answered(); });
              },
          .hangs = [this] { recover(); },
          .stands =
              [this] {
                if (!isPaused_) lostSound_.filmStands();
              },
          .moves = [this] { return engine_.moves(); }};
}

void PlaybackModel::handle(const event::VideoDeviceLost&) { recover(); }

/// In a new engine: one that hangs can't be told anything, and one whose output has lost its device
/// draws no more. A film that does it again soon is given up.
void PlaybackModel::recover() {
  const bool isSoon = clock_.now() - recoveredAt_ < kSoon;
  const bool wasOpening = isOpening_;
  const bool hasFilm = wasOpening || (isLoaded_ && !isStopping_);
  if (!hasFilm && isSoon) return;  // the next one is to show that it works
  const auto path = wasOpening && asked_ ? asked_ : currentPath_;
  const bool isHopeless = !path || (recovered_ == path && isSoon);
  recovered_ = path;
  recoveredAt_ = clock_.now();
  const PlayQueue queue = asked_ ? PlayQueue() : queue_;
  const auto position = wasOpening ? std::nullopt : std::optional(position_);
  const bool isPaused = isPaused_;
  filmKeeper_.keep();
  trial_.ended();
  replaceEngine();
  if (!hasFilm && engine_.hasHandle()) {
    status_ = QStringLiteral("Ready for a video");
    return;
  }
  if (isHopeless || !engine_.hasHandle()) return giveUp(wasOpening);
  player().replaceWindow();
  reload(queue, position, isPaused);
}

void PlaybackModel::replaceEngine() {
  const bool isFullscreen = isFullscreen_;
  lostSound_.fileEnded();
  engine_.terminate([] {});
  isLoaded_ = isOpening_ = false;
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

void PlaybackModel::awaitFile(std::optional<std::string> asked) {
  isOpening_ = true;
  isStopping_ = false;
  asked_ = std::move(asked);
  watch_.heard();
}

void PlaybackModel::reload(const PlayQueue& queue, std::optional<double> position, bool isPaused) {
  const qsizetype current = currentIndex(queue).value_or(0);
  progress_ = QueueProgress();
  progress_.opened();
  load(fileUrlFromPath(*recovered_), "replace", -1, position);
  awaitFile(recovered_);
  setPause(isPaused);
  for (qsizetype i = 0; i < queue.size(); ++i) {
    if (i == current) continue;
    progress_.appended();
    const bool isBefore = i < current;
    load(fileUrlFromPath(queue[i].file), isBefore ? "insert-at" : "append", isBefore ? i : -1, {});
  }
}

void PlaybackModel::giveUp(bool wasOpening) {
  const QString reason = wasOpening ? tr("the graphics card or the sound server doesn't answer.")
                                    : tr("the graphics card stopped answering; update its driver.");
  const QString message = tr("Could not play %1: %2").arg(title_, reason);
  reportPlaybackError(message);
  player().setAwaitingVideo(false);
  player().hasWindow() ? player().close() : player().showLibrary();
}

}  // namespace tromelo
