#include "engine/MpvValue.h"
#include "playback/PlaybackModel.h"
#include "playback/TrackCycle.h"

namespace tromelo {

void PlaybackModel::publishTracks(const MpvValue& list) {
  audioTracks_ = mediaTracks(list, MediaTrack::Kind::audio);
  subtitleTracks_ = mediaTracks(list, MediaTrack::Kind::sub);
}

void PlaybackModel::selectTrack(const char* property, const MediaTrack& track) {
  engine_.setProperty(property, std::to_string(track.id));
}

QString PlaybackModel::cycleSubtitle() {
  const QList<MediaTrack>& tracks = subtitleTracks_;
  if (const MediaTrack* next = nextSubtitle(tracks)) {
    selectTrack("sid", *next);
    return QStringLiteral("Subtitles: ") + next->name();
  }
  engine_.setProperty("sid", "no");
  return tracks.isEmpty() ? QStringLiteral("No subtitles") : QStringLiteral("Subtitles off");
}

QString PlaybackModel::cycleAudio() {
  const QList<MediaTrack>& tracks = audioTracks_;
  const MediaTrack* next = nextAudio(tracks);
  if (!next) return QStringLiteral("No audio");
  if (tracks.size() > 1) selectTrack("aid", *next);
  return QStringLiteral("Audio: ") + next->name();
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
