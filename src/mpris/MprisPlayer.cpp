#include "mpris/MprisPlayer.h"

#include <QUrl>
#include <algorithm>

#include "mpris/MprisService.h"
#include "mpris/MprisValues.h"
#include "playback/PlaybackModel.h"
#include "playback/SpeedLadder.h"

namespace tromelo {

MprisPlayer::MprisPlayer(const QDBusConnection& bus, PlaybackModel& playback,
                         const MprisShell& shell, QObject* exported)
    : QDBusAbstractAdaptor(exported), bus_(bus), playback_(playback), shell_(shell) {}

QString MprisPlayer::playbackStatus() const { return tromelo::playbackStatus(playback_); }

QString MprisPlayer::loopStatus() const { return tromelo::loopStatus(playback_); }

void MprisPlayer::setLoopStatus(const QString& status) {
  const bool track = status == QLatin1String("Track");
  const bool all = status == QLatin1String("Playlist");
  if (!track && !all && status != QLatin1String("None")) return;
  if (track != playback_.isLooping()) playback_.toggleLoop();
  if (all != playback_.isRepeatingAll()) playback_.toggleRepeatAll();
}

bool MprisPlayer::shuffle() const { return playback_.isShuffled(); }

void MprisPlayer::setShuffle(bool shuffle) {
  if (shuffle != playback_.isShuffled()) playback_.toggleShuffle();
}

double MprisPlayer::rate() const { return playback_.speed(); }

void MprisPlayer::setRate(double rate) {
  if (rate == 0) return Pause();
  playback_.setSpeed(std::clamp(rate, minimumRate(), maximumRate()));
}

double MprisPlayer::minimumRate() const { return speedLadder().front(); }

double MprisPlayer::maximumRate() const { return speedLadder().back(); }

QVariantMap MprisPlayer::metadata() const { return trackMetadata(playback_); }

double MprisPlayer::volume() const { return volumeForDesktop(playback_.volume()); }

void MprisPlayer::setVolume(double volume) { playback_.setVolume(volumeFromDesktop(volume)); }

qlonglong MprisPlayer::position() const {
  playback_.catchUp();
  return microsecondsFrom(playback_.elapsed());
}

bool MprisPlayer::canGoNext() const { return playback_.hasNext(); }

bool MprisPlayer::canGoPrevious() const { return playback_.hasPrevious(); }

bool MprisPlayer::canPlay() const { return playback_.isLoaded(); }

bool MprisPlayer::canPause() const { return playback_.isLoaded(); }

bool MprisPlayer::canSeek() const { return tromelo::canSeek(playback_); }

void MprisPlayer::announceSeek(double seconds) { Q_EMIT Seeked(microsecondsFrom(seconds)); }

void MprisPlayer::Next() {
  if (canGoNext()) playback_.playNext();
}

void MprisPlayer::Previous() {
  if (canGoPrevious()) playback_.playPrevious();
}

void MprisPlayer::Pause() { playback_.setPaused(true); }

void MprisPlayer::PlayPause() { playback_.togglePlayback(); }

void MprisPlayer::Stop() {
  if (playback_.isLoaded()) shell_.stop();
}

void MprisPlayer::Play() { playback_.setPaused(false); }

void MprisPlayer::Seek(qlonglong Offset) {
  if (!canSeek()) return;
  const double by = secondsFrom(Offset);
  playback_.catchUp();
  if (playback_.elapsed() + by > playback_.duration()) return Next();
  playback_.seekBy(by);
}

void MprisPlayer::SetPosition(const QDBusObjectPath& TrackId, qlonglong Position) {
  if (const auto seconds = wantedPosition(playback_, TrackId, Position)) playback_.seekTo(*seconds);
}

void MprisPlayer::OpenUri(const QString& Uri, const QDBusMessage& message) {
  const QUrl url(Uri, QUrl::StrictMode);
  if (url.isLocalFile()) return playback_.open(url);
  refuseUri(bus_, message);
}

}  // namespace tromelo
