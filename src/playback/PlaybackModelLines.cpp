#include <algorithm>
#include <array>

#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

using Kind = SubtitleLines::Source::Kind;

/// The engine's names for codecs whose subtitles are drawn.
constexpr std::array kPictures{"hdmv_pgs_subtitle", "dvd_subtitle", "dvb_subtitle", "xsub"};

Kind kindOf(const MediaTrack& track) {
  const std::string codec = track.codec.value_or(QString()).toStdString();
  if (std::ranges::find(kPictures, codec) != kPictures.end()) return Kind::pictures;
  return track.stream ? Kind::text : Kind::unreadable;
}

}  // namespace

void PlaybackModel::showLinesOfSubtitles() {
  const QList<MediaTrack>& tracks = subtitleTracks_;
  const auto track = std::ranges::find_if(tracks, &MediaTrack::isSelected);
  const bool isOwnFile = track != tracks.end() && !track->file.empty();
  // Between two films the tracks may still be those of the first.
  const bool isTextFile = isOwnFile && kindOf(*track) == Kind::text;
  coding_.setFile(isTextFile ? std::optional(track->file) : std::nullopt);
  if (track == tracks.end() || (!isOwnFile && !currentPath_)) return lines_.setSource({});
  lines_.setSource({.kind = kindOf(*track),
                    .request = {.path = isOwnFile ? track->file : *currentPath_,
                                .stream = static_cast<int>(track->stream.value_or(-1)),
                                .isOwnFile = isOwnFile,
                                .codepage = isOwnFile ? coding_.codepage() : ""},
                    .begin = isOwnFile ? 0 : fileBegin_});
}

void PlaybackModel::syncSubtitles(double lineStart) { setSubtitleDelay(position_ - lineStart); }

void PlaybackModel::syncToNextLine(const std::function<void(const QString& fault)>& done) {
  const double spoken = position_;
  lines_.findNext(spoken - subtitleDelay_, [this, spoken, done](std::optional<double> start) {
    if (start) setSubtitleDelay(spoken - *start);
    const QString note = lines_.note();
    done(start ? QString() : note.isEmpty() ? tr("No line follows") : note);
  });
}

}  // namespace tromelo
