#include <algorithm>
#include <cmath>

#include "engine/MpvValue.h"
#include "platform/Clock.h"
#include "platform/FilePath.h"
#include "platform/NumberText.h"
#include "playback/PlaybackModel.h"
#include "playback/SignalTexts.h"
#include "playback/SpeedLadder.h"

namespace tromelo {

namespace {

/// The least time between two seeks while the position is dragged.
constexpr double kScrubInterval = 0.08;

double toMilliseconds(double seconds) { return std::round(seconds * 1000) / 1000; }

}  // namespace

void PlaybackModel::togglePlayback() { setPaused(!isPaused_); }

void PlaybackModel::setPaused(bool paused) {
  if (isLoaded_) setPause(paused);
}

void PlaybackModel::pauseWhatComes() { setPause(true); }

void PlaybackModel::setPause(bool paused) {
  wantsPause_ = paused;
  engine_.setProperty("pause", flagText(paused));
}

void PlaybackModel::stop() {
  reading_.drop();
  isStopping_ = true;
  engine_.command({"stop"});
}

void PlaybackModel::stepFrame(int direction) {
  wantsPause_ = true;  // it does that too
  engine_.command({direction < 0 ? "frame-back-step" : "frame-step"});
}

void PlaybackModel::seek(double seconds, const char* how) {
  engine_.command({"seek", numberText(seconds), how});
}

void PlaybackModel::seekBy(double seconds) {
  if (isLoaded_ && std::isfinite(seconds)) seek(seconds, "relative");
}

void PlaybackModel::seekTo(double seconds) {
  if (isLoaded_ && std::isfinite(seconds)) seek(std::max(seconds, 0.0), "absolute+exact");
}

void PlaybackModel::beginScrubbing() {
  scrubPosition_ = elapsed_.get();
  isScrubbing_ = true;
}

void PlaybackModel::scrubTo(double seconds) {
  // Without a drag it is another file's.
  if (!isScrubbing_ || !std::isfinite(seconds)) return;
  scrubPosition_ = seconds;
  const double now = clock_.now();
  if (now - lastScrubSeek_ <= kScrubInterval) return;
  lastScrubSeek_ = now;
  seek(std::max(seconds, 0.0), "absolute+keyframes");
}

void PlaybackModel::endScrubbing() {
  if (!isScrubbing_) return;
  seekTo(scrubPosition_);
  elapsed_ = scrubPosition_.get();
  isScrubbing_ = false;
}

void PlaybackModel::playPrevious() { engine_.command({"playlist-prev"}); }

void PlaybackModel::playNext() { engine_.command({"playlist-next"}); }

void PlaybackModel::toggleMute() {
  isMuted_ = !isMuted_;
  engine_.setProperty("mute", flagText(isMuted_));
}

void PlaybackModel::setVolume(double volume) {
  if (!std::isfinite(volume)) return;
  volume_ = std::clamp(volume, 0.0, 100.0);
  engine_.setProperty("volume", numberText(volume_));
  if (!isMuted_ || volume_ <= 0) return;
  isMuted_ = false;
  engine_.setProperty("mute", flagText(false));
}

void PlaybackModel::setSpeed(double speed) {
  if (!std::isfinite(speed)) return;
  speed_ = speed;
  engine_.setProperty("speed", numberText(speed));
}

double PlaybackModel::stepSpeed(int steps) {
  setSpeed(steppedSpeed(speed_, steps));
  return speed_;
}

void PlaybackModel::toggleLoop() {
  isLooping_ = !isLooping_;
  engine_.setProperty("loop-file", isLooping_ ? "inf" : "no");
}

void PlaybackModel::markLoop() {
  if (!isLoaded_) return;
  abLoop_ = abLoop_.get().marked(position_);
  // The engine forgets what is set in this way together with the file.
  engine_.setProperty("file-local-options/ab-loop-a", loopMarkText(abLoop().start));
  engine_.setProperty("file-local-options/ab-loop-b", loopMarkText(abLoop().end));
  // The engine has come further meanwhile, and what is played beyond the end never returns.
  if (abLoop().isWhole() && !isPaused_) seekTo(*abLoop().start);
}

void PlaybackModel::toggleRepeatAll() {
  isRepeatingAll_ = !isRepeatingAll_;
  engine_.setProperty("loop-playlist", isRepeatingAll_ ? "inf" : "no");
}

void PlaybackModel::setSubtitleDelay(double seconds) {
  if (!std::isfinite(seconds)) return;
  subtitleDelay_ = toMilliseconds(seconds);
  filmKeeper_.choseSubtitleDelay(subtitleDelay_);
  engine_.setProperty("sub-delay", numberText(subtitleDelay_));
}

void PlaybackModel::setAudioDelay(double seconds) {
  if (!std::isfinite(seconds)) return;
  audioDelay_ = toMilliseconds(seconds);
  filmKeeper_.choseAudioDelay(audioDelay_);
  engine_.setProperty("audio-delay", numberText(audioDelay_));
}

void PlaybackModel::updateDisplay(const std::optional<ScreenHeadroom>& screen) {
  if (!screen) return;
  display_ = displayText(*screen);
  if (std::exchange(screen_, *screen) != *screen) Q_EMIT infoChanged();
}

void PlaybackModel::setPictureWay(const PictureWay& way) {
  pictureWay_ = way;
  // Into the log, beside what the engine says of its output.
  engine_.command({"print-text", ("Picture: " + reportOf(way)).toStdString()});
  Q_EMIT infoChanged();
}

void PlaybackModel::setFullscreen(bool fullscreen) {
  engine_.setProperty("fullscreen", flagText(fullscreen));
}

void PlaybackModel::withPictureSize(const std::function<void(QSize)>& use) {
  engine_.readProperty("dwidth", [this, use](const std::optional<std::string>& width) {
    engine_.readProperty("dheight", [width, use](const std::optional<std::string>& height) {
      const QSize size(QByteArray::fromStdString(width.value_or("")).toInt(),
                       QByteArray::fromStdString(height.value_or("")).toInt());
      if (!size.isEmpty()) use(size);
    });
  });
}

void PlaybackModel::keepPicture(Screenshots::What what) {
  if (!isLoaded_ || !facts_.hasPicture()) return player().showToast(tr("No picture to keep"));
  const QString film = lastPathComponentWithoutExtension(
      fileUrlFromPath(currentPath_.value_or(title_.get().toStdString())));
  screenshots_.keep(
      what, {film, elapsed_, dynamicRangeOf(facts_).isHigh()}, [this](const QUrl& picture) {
        if (!picture.isEmpty()) return player().showKeptPicture(picture);
        player().showToast(tr(
            "The picture couldn't be kept; look whether there is room in your pictures folder."));
      });
}

void PlaybackModel::copyPicture() {
  if (!isLoaded_ || !facts_.hasPicture()) return player().showToast(tr("No picture to copy"));
  screenshots_.make(Screenshots::What::withSubtitles, [this](const QByteArray& png) {
    if (!png.isEmpty()) copyPicture_(png);
    player().showToast(png.isEmpty() ? tr("The picture couldn't be copied") : tr("Picture copied"));
  });
}

void PlaybackModel::restartVideoOutput() {
  // libmpv does it for a value that differs from the one before. This one means the same: the
  // second is for where the first doesn't work.
  engine_.setProperty("vo", "gpu-next,gpu-next");
}

void PlaybackModel::publishTracks(const MpvValue& list) {
  audioTracks_ = mediaTracks(list, MediaTrack::Kind::audio);
  subtitleTracks_ = mediaTracks(list, MediaTrack::Kind::sub);
  for (const MediaTrack& track : audioTracks_.get())
    if (track.isSelected) lostSound_.plays(track.id);
  filmKeeper_.tracksChanged(audioTracks_, subtitleTracks_);
  showLinesOfSubtitles();
  showSecondSubtitle();
  tellChanges();
}

void PlaybackModel::selectSubtitle(qint64 track) {
  filmKeeper_.choseSubtitle();
  engine_.setProperty("sid", std::to_string(track));
}

void PlaybackModel::addSubtitle(const QUrl& file) {
  filmKeeper_.choseSubtitle();
  engine_.command({"sub-add", pathFromFileUrl(file), "select"});
}

void PlaybackModel::setSubtitleLift(double percent) {
  subtitleLift_ = percent;
  placeSubtitles();
}

void PlaybackModel::turnSubtitlesOff() {
  filmKeeper_.choseSubtitle();
  engine_.setProperty("sid", "no");
}

void PlaybackModel::selectAudio(qint64 track) {
  filmKeeper_.choseAudio();
  engine_.setProperty("aid", std::to_string(track));
}

QString PlaybackModel::cycleSubtitle() {
  const QList<MediaTrack>& tracks = subtitleTracks_;
  if (const MediaTrack* next = nextSubtitle(tracks)) {
    selectSubtitle(next->id);
    return tr("Subtitles: %1").arg(next->name());
  }
  turnSubtitlesOff();
  return tracks.isEmpty() ? tr("No subtitles") : tr("Subtitles off");
}

QString PlaybackModel::cycleAudio() {
  const QList<MediaTrack>& tracks = audioTracks_;
  const MediaTrack* next = nextAudio(tracks);
  if (!next) return tr("No audio");
  if (tracks.size() > 1) selectAudio(next->id);
  return tr("Audio: %1").arg(next->name());
}

bool PlaybackModel::stepSubtitleLine(int steps) {
  const bool areShown = std::ranges::any_of(subtitleTracks_.get(), &MediaTrack::isSelected);
  if (areShown) engine_.command({"sub-seek", std::to_string(steps)});
  return areShown;
}

std::optional<FilmBookmark> PlaybackModel::addBookmark() {
  if (const auto there = marks_.at(position_)) return there;
  marks_.add(position_, tr("Bookmark %1").arg(bookmarks().size() + 1));
  return {};
}

void PlaybackModel::seekToChapter(int position) {
  if (position < 0 || position >= chapters_.get().size()) return;
  currentChapter_ = position;
  engine_.setProperty("chapter", std::to_string(position));
}

std::optional<Chapter> PlaybackModel::stepChapter(int steps) {
  const auto target = steppedChapter(chapters_, currentChapter_, elapsed_, steps);
  if (!target) return {};
  seekToChapter(*target);
  return chapters_.get()[*target];
}

}  // namespace tromelo
