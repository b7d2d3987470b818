#include "engine/MpvValue.h"
#include "platform/FilePath.h"
#include "playback/PlaybackModel.h"
#include "playback/TrackCycle.h"

namespace tromelo {

void PlaybackModel::publishTracks(const MpvValue& list) {
  audioTracks_ = mediaTracks(list, MediaTrack::Kind::audio);
  subtitleTracks_ = mediaTracks(list, MediaTrack::Kind::sub);
}

void PlaybackModel::selectSubtitle(qint64 track) {
  engine_.setProperty("sid", std::to_string(track));
}

void PlaybackModel::addSubtitle(const QUrl& file) {
  engine_.command({"sub-add", pathFromFileUrl(file), "select"});
}

void PlaybackModel::setSubtitleLift(double percent) {
  subtitleLift_ = percent;
  engine_.setProperty("sub-pos", QString::number(100 - percent, 'f', 2).toStdString());
}

void PlaybackModel::turnSubtitlesOff() { engine_.setProperty("sid", "no"); }

void PlaybackModel::selectAudio(qint64 track) { engine_.setProperty("aid", std::to_string(track)); }

void PlaybackModel::playQueueItem(qint64 item) {
  engine_.command({"playlist-play-index", std::to_string(item)});
}

void PlaybackModel::removeQueueItem(qint64 item) {
  engine_.command({"playlist-remove", std::to_string(item)});
}

void PlaybackModel::clearQueue() { engine_.command({"playlist-clear"}); }

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
