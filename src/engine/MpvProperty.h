#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace tromelo {

/// The engine properties that we observe, a row each; all that is said of one is said here:
///
///   ROW(our name, the engine's name, format, how long it holds, what becomes of it)
///
/// How long: "session" belongs to the file that plays, and when the engine takes it away the last
/// value stays on show; "lasting" is gone with it.
/// What: a "fact" is kept in FileFacts under its name, until the next file starts; "state" is taken
/// by the function of that name in PropertyMapping.
#define TROMELO_MPV_PROPERTIES(ROW)                                                          \
  ROW(mediaTitle, "media-title", string, lasting, state)                                     \
  ROW(timePos, "time-pos", number, lasting, state)                                           \
  ROW(duration, "duration", number, lasting, state)                                          \
  ROW(pause, "pause", flag, lasting, state)                                                  \
  ROW(volume, "volume", number, lasting, state)                                              \
  ROW(eofReached, "eof-reached", flag, lasting, state)                                       \
  ROW(fullscreen, "fullscreen", flag, lasting, state)                                        \
  ROW(voConfigured, "vo-configured", flag, lasting, state)                                   \
  ROW(pausedForCache, "paused-for-cache", flag, lasting, state)                              \
  ROW(width, "width", int64, session, fact)                                                  \
  ROW(height, "height", int64, session, fact)                                                \
  ROW(containerFps, "container-fps", number, session, fact)                                  \
  ROW(estimatedFps, "estimated-vf-fps", number, session, fact)                               \
  ROW(videoFormat, "video-format", string, session, fact)                                    \
  ROW(hwdecCurrent, "hwdec-current", string, session, state)                                 \
  ROW(fileFormat, "file-format", string, session, fact)                                      \
  ROW(displayFps, "display-fps", number, lasting, fact)                                      \
  ROW(decoderDrops, "decoder-frame-drop-count", int64, lasting, fact)                        \
  ROW(outputDrops, "frame-drop-count", int64, lasting, fact)                                 \
  ROW(gamma, "video-params/gamma", string, session, fact)                                    \
  ROW(primaries, "video-params/primaries", string, session, fact)                            \
  ROW(colormatrix, "video-params/colormatrix", string, session, fact)                        \
  ROW(sigPeak, "video-params/sig-peak", number, session, fact)                               \
  ROW(dolbyVisionProfile, "current-tracks/video/dolby-vision-profile", int64, session, fact) \
  ROW(targetGamma, "video-target-params/gamma", string, session, fact)                       \
  ROW(targetPrimaries, "video-target-params/primaries", string, session, fact)               \
  ROW(path, "path", string, session, state)                                                  \
  ROW(trackList, "track-list", node, lasting, state)                                         \
  ROW(chapterList, "chapter-list", node, lasting, state)                                     \
  ROW(chapter, "chapter", int64, lasting, state)                                             \
  ROW(playlist, "playlist", node, lasting, state)                                            \
  ROW(playlistPos, "playlist-pos", int64, lasting, state)                                    \
  ROW(speed, "speed", number, lasting, state)                                                \
  ROW(mute, "mute", flag, lasting, state)                                                    \
  ROW(subDelay, "sub-delay", number, lasting, state)                                         \
  ROW(audioDelay, "audio-delay", number, lasting, state)                                     \
  ROW(fileBegin, "demuxer-start-time", number, lasting, state)                               \
  ROW(subCodepage, "sub-codepage", string, lasting, state)                                   \
  /* These hold "no" or a time. */                                                           \
  ROW(abLoopA, "ab-loop-a", string, lasting, state)                                          \
  ROW(abLoopB, "ab-loop-b", string, lasting, state)                                          \
  /* Texts, since they hold "no", "inf" or a number of rounds. */                            \
  ROW(loopFile, "loop-file", string, lasting, state)                                         \
  ROW(loopPlaylist, "loop-playlist", string, lasting, state)

/// The value is also the number under which a change is reported.
enum class MpvProperty : std::uint64_t {
  none = 0,
#define TROMELO_CASE(name, ...) name,
  TROMELO_MPV_PROPERTIES(TROMELO_CASE)
#undef TROMELO_CASE
};

/// How the engine is asked to report a property; the numbers are libmpv's.
enum class MpvFormat { string = 1, flag = 3, int64 = 4, number = 5, node = 6 };

/// All of them, in order.
std::span<const MpvProperty> allMpvProperties();

const char* mpvPropertyName(MpvProperty property);
MpvFormat mpvPropertyFormat(MpvProperty property);

/// It may have another value with every frame that plays.
bool changesWithFrames(MpvProperty property);

/// None for a number that is no property's.
std::optional<MpvProperty> mpvProperty(std::uint64_t rawValue);

}  // namespace tromelo
