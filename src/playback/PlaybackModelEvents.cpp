#include <cmath>
#include <utility>

#include "engine/MpvValue.h"
#include "platform/Clock.h"
#include "platform/Timeline.h"
#include "playback/EngineErrors.h"
#include "playback/PlaybackModel.h"
#include "playback/PropertyMapping.h"

namespace tromelo {

namespace {

// How far the position may be from where it was expected to be before it counts as a jump, seconds.
constexpr double kSeekTolerance = 0.2;
constexpr double kStartTolerance = 1;

}  // namespace

void PlaybackModel::handleEvent(const MpvEvent& received) {
  std::visit([this](const auto& kind) { handle(kind); }, received);
}

void PlaybackModel::handle(const event::Property& change) {
  PropertyMapping::apply(*this, change.property, change.value);
}

void PlaybackModel::handle(const event::FileQueued& answer) {
  progress_.queued(answer.entry);
  settleFailures();
}

void PlaybackModel::handle(const event::StartFile& start) {
  progress_.started();
  shuffle_.started(start.entry);
  settleFailures();
  resetForNewFile();
  awaitFile();
  entry_ = start.entry;
  filmKeeper_.started(entry_);
  trial_.started(entry_);
  lostSound_.started(entry_);
  adjustments_.fileStarted();
  tellChanges();
  barsFinder_.stop();
  status_ = QStringLiteral("Opening media");
}

void PlaybackModel::resetForNewFile() {
  isLoaded_ = false;
  isAtEnd_ = false;
  hasAskedFolder_ = false;
  hasStarted_ = false;
  hasPicture_ = false;
  hasFailed_ = false;
  outputFault_.clear();
  currentPath_.reset();
  restart_.reset();
  elapsed_ = 0;
  position_ = 0;
  abLoop_ = AbLoop();
  marks_.fileStarted();
  duration_ = 0;
  scrubPosition_ = 0;
  isScrubbing_ = false;
  forgetFacts();
  decoder_ = tr("Selecting decoder");
  buffering_ = Buffering::loading;
  currentChapter_ = std::nullopt;
  hardware_.fileStarted();
  showLinesOfSubtitles();
}

void PlaybackModel::handle(const event::FileLoaded&) {
  Timeline::note("film opened");
  isLoaded_ = true;
  isOpening_ = false;
  watch_.heard();
  buffering_ = Buffering::ready;
  takeAdjustments();
  if (currentPath_)
    remember(*currentPath_);
  else
    askForPath();
  tellOutputFault();
}

void PlaybackModel::handle(const event::VideoReconfigured&) {
  Timeline::note("engine's output made");
  if (isLoaded_ && !hasStarted_) hasPicture_ = true;
}

void PlaybackModel::handle(const event::PlaybackRestart&) {
  const bool isFirst = !hasStarted_;
  buffering_ = Buffering::ready;
  hardware_.lastPlaybackRestart = clock_.now();
  trial_.played();
  noteRestart();
  showVideoReady();
  if (isFirst && filmKeeper_.resumedAt()) Q_EMIT resumed(*filmKeeper_.resumedAt());
  if (!isFirst) filmKeeper_.keepSoon();
}

void PlaybackModel::noteRestart() {
  // A file begins at its beginning unless it is told otherwise.
  restart_ = hasStarted_ ? Restart{elapsed_, kSeekTolerance} : Restart{0, kStartTolerance};
  if (std::exchange(hasStarted_, true)) Q_EMIT seeked(elapsed_);
}

void PlaybackModel::checkRestart() {
  const auto restart = std::exchange(restart_, std::nullopt);
  if (restart && std::abs(elapsed_ - restart->position) > restart->tolerance)
    Q_EMIT seeked(elapsed_);
}

void PlaybackModel::showVideoReady() {
  Timeline::note("engine ready");
  player().setVideoReady(true);
  player().reveal();
  showWaitingToast();
}

void PlaybackModel::handle(const event::EndFile& end) {
  filmKeeper_.keep();
  trial_.ended();
  lostSound_.fileEnded();
  tidyUp_();
  isLoaded_ = isOpening_ = false;
  // A film that was shown without its sound has been played.
  if (!end.error || (end.lacksSoundDevice && hasPicture_)) {
    status_ = QStringLiteral("Ready for a video");
    buffering_ = Buffering::unknown;
    return;
  }
  if (end.lacksSoundDevice && outputFault_.isEmpty()) outputFault_ = audioOutputFault();
  const QString reason = outputFault_.isEmpty() ? engineErrorText(*end.error) : outputFault_;
  hasFailed_ = progress_.failed(end.entry, reason);
  settleFailures();
}

void PlaybackModel::handle(const event::Idle&) {
  isOpening_ = false;
  progress_.cameToRest();
  settleFailures();
}

/// A file can also fail before those that were opened with it have reached the engine.
void PlaybackModel::settleFailures() {
  while (const auto failure = progress_.nextFailure(queue_)) tellOf(*failure);
  if (const auto next = progress_.takeLeftBehind(queue_)) playQueueItem(*next);
}

void PlaybackModel::tellOf(const QueueProgress::Failure& failure) {
  const QString title = failure.title.isEmpty() ? title_ : failure.title;
  const QString message = tr("Could not play %1: %2").arg(title, failure.reason);
  if (failure.isNew && failure.isSkipped) {
    errorMessage_ = message;  // the rest is about the file that has started since
  } else if (failure.isNew) {
    title_ = title;
    reportPlaybackError(message);
  }
  if (failure.isSkipped) player().showToast(tr("Skipped %1: %2").arg(title, failure.reason));
  if (!failure.isLast) return;
  player().setAwaitingVideo(false);
  if (player().hasWindow()) {
    player().close();
  } else {
    player().showLibrary();
  }
}

void PlaybackModel::handle(const event::CommandFailed& failure) {
  if (!isLoaded_) reportPlaybackError(engineErrorText(failure.error));
  isOpening_ = false;
  progress_.refused();
  settleFailures();
}

void PlaybackModel::handle(const event::Shutdown&) {
  isLoaded_ = false;
  status_ = QStringLiteral("Playback engine stopped");
  buffering_ = Buffering::unknown;
}

void PlaybackModel::handle(const event::HardwareDecodeError&) {
  if (!hardware_.givesUpAfterError(clock_.now())) return;
  engine_.setProperty("file-local-options/hwdec", "no");
  if (currentPath_) rememberSoftwareDecode(*currentPath_);
}

void PlaybackModel::handle(const event::VideoOutputFailed&) {
  outputFault_ = videoOutputFault(hasVulkanDevice_());
  tellOutputFault();
}

void PlaybackModel::handle(const event::AudioOutputFailed&) {
  if (const QString sentence = soundDevices_.lost(); !sentence.isEmpty()) {
    lostSound_.tryAgain();
    return tell(sentence);
  }
  lostSound_.failed();
  noSound();
}

void PlaybackModel::noSound() {
  if (!outputFault_.isEmpty()) return;
  outputFault_ = audioOutputFault();
  tellOutputFault();
}

/// The engine tells of a missing output before or after the file is loaded or has failed.
void PlaybackModel::tellOutputFault() {
  if (outputFault_.isEmpty()) return;
  if (hasFailed_) reportPlaybackError(tr("Could not play %1: %2").arg(title_, outputFault_));
  if (!isLoaded_) return;
  if (outputFault_ != audioOutputFault())
    errorMessage_ = outputFault_;
  else if (!std::exchange(toldOfNoSound_, true))
    tell(outputFault_);
}

void PlaybackModel::takeFall(bool isNew) {
  hardware_.tookProgramDown = hardware_.forcedSoftware = true;
  if (isNew)
    tell(tr(
        "Tromelo broke off while hardware decoded this film; it is decoded in software until you "
        "update your graphics driver."));
}

void PlaybackModel::rememberSoftwareDecode(const std::string& path) {
  if (isPrivate_) return;
  hardware_.softwarePaths.insert(path);
  store(hardware_.softwarePaths, defaults_);
}

void PlaybackModel::updateStatus() {
  if (!isLoaded_) return;
  if (buffering_.get() == Buffering::buffering) {
    status_ = QStringLiteral("Buffering");
  } else {
    status_ = isPaused_ ? QStringLiteral("Paused") : QStringLiteral("Playing");
  }
}

}  // namespace tromelo
