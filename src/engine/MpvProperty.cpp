#include "engine/MpvProperty.h"

#include <mpv/client.h>

#include <algorithm>
#include <array>

namespace tromelo {

namespace {

static_assert(int(MpvFormat::string) == MPV_FORMAT_STRING);
static_assert(int(MpvFormat::flag) == MPV_FORMAT_FLAG);
static_assert(int(MpvFormat::int64) == MPV_FORMAT_INT64);
static_assert(int(MpvFormat::number) == MPV_FORMAT_DOUBLE);
static_assert(int(MpvFormat::node) == MPV_FORMAT_NODE);

struct Row {
  MpvProperty property;
  const char* name;
  MpvFormat format;
};

using P = MpvProperty;
using F = MpvFormat;

constexpr std::array kRows{
    Row{P::mediaTitle, "media-title", F::string},
    Row{P::timePos, "time-pos", F::number},
    Row{P::duration, "duration", F::number},
    Row{P::pause, "pause", F::flag},
    Row{P::volume, "volume", F::number},
    Row{P::fullscreen, "fullscreen", F::flag},
    Row{P::voConfigured, "vo-configured", F::flag},
    Row{P::pausedForCache, "paused-for-cache", F::flag},
    Row{P::width, "width", F::int64},
    Row{P::height, "height", F::int64},
    Row{P::containerFps, "container-fps", F::number},
    Row{P::estimatedFps, "estimated-vf-fps", F::number},
    Row{P::videoFormat, "video-format", F::string},
    Row{P::hwdecCurrent, "hwdec-current", F::string},
    Row{P::fileFormat, "file-format", F::string},
    Row{P::decoderDrops, "decoder-frame-drop-count", F::int64},
    Row{P::outputDrops, "frame-drop-count", F::int64},
    Row{P::gamma, "video-params/gamma", F::string},
    Row{P::primaries, "video-params/primaries", F::string},
    Row{P::colormatrix, "video-params/colormatrix", F::string},
    Row{P::sigPeak, "video-params/sig-peak", F::number},
    Row{P::dolbyVisionProfile, "current-tracks/video/dolby-vision-profile", F::int64},
    Row{P::targetGamma, "video-target-params/gamma", F::string},
    Row{P::targetPrimaries, "video-target-params/primaries", F::string},
    Row{P::path, "path", F::string},
    Row{P::trackList, "track-list", F::node},
    Row{P::chapterList, "chapter-list", F::node},
    Row{P::chapter, "chapter", F::int64},
    Row{P::playlist, "playlist", F::node},
    Row{P::playlistPos, "playlist-pos", F::int64},
    Row{P::speed, "speed", F::number},
    Row{P::mute, "mute", F::flag},
    Row{P::subDelay, "sub-delay", F::number},
    Row{P::audioDelay, "audio-delay", F::number},
    // Text, since it holds "no", "inf" or a number of rounds.
    Row{P::loopFile, "loop-file", F::string},
};

constexpr bool rowsFollowTheEnumeration() {
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    if (static_cast<std::uint64_t>(kRows[i].property) != i + 1) return false;
  }
  return true;
}
static_assert(rowsFollowTheEnumeration());

constexpr auto kAll = [] {
  std::array<MpvProperty, kRows.size()> all{};
  std::ranges::transform(kRows, all.begin(), &Row::property);
  return all;
}();

const Row& row(MpvProperty property) { return kRows[static_cast<std::size_t>(property) - 1]; }

}  // namespace

std::span<const MpvProperty> allMpvProperties() { return kAll; }

const char* mpvPropertyName(MpvProperty property) { return row(property).name; }

MpvFormat mpvPropertyFormat(MpvProperty property) { return row(property).format; }

std::optional<MpvProperty> mpvProperty(std::uint64_t rawValue) {
  if (rawValue < 1 || rawValue > kRows.size()) return {};
  return static_cast<MpvProperty>(rawValue);
}

}  // namespace tromelo
