#include "playback/PropertyMapping.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <type_traits>

#include "engine/MpvValue.h"
#include "platform/FilePath.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

using Model = PlaybackModel;
using Value = MpvValue;

template <typename T>
std::optional<T> held(const Value& value) {
  const T* pointer = value.as<T>();
  return pointer ? std::optional<T>(*pointer) : std::nullopt;
}

/// The smallest step of the position that is worth showing.
constexpr double kPositionStep = 0.2;

}  // namespace

/// What becomes of each property that is "state", under its name.
struct PropertyMapping::Actions {
  static void mediaTitle(Model& m, const Value& v) {
    const auto title = held<std::string>(v);
    if (title && !title->empty())
      m.title_ = withoutLastPathExtension(QString::fromStdString(*title));
  }

  static void timePos(Model& m, const Value& v) {
    const double position = held<double>(v).value_or(NAN);
    if (!std::isfinite(position)) return;
    m.position_ = position;
    const double shown = m.elapsed_;
    if (position < shown || position - shown >= kPositionStep) m.elapsed_ = position;
    if (!m.isScrubbing_) m.scrubPosition_ = m.elapsed_.get();
    m.checkRestart();
    m.noteMove();
  }

  static void duration(Model& m, const Value& v) {
    const double length = held<double>(v).value_or(0);
    m.duration_ = std::isfinite(length) && length > 0 ? length : 0;
  }

  static void pause(Model& m, const Value& v) {
    m.isPaused_ = held<bool>(v).value_or(true);
    if (m.isPaused_) m.filmKeeper_.keep();
    m.watch_.heard();
    m.updateStatus();
    m.checkEnd();
  }

  static void volume(Model& m, const Value& v) {
    if (const auto volume = held<double>(v)) m.volume_ = *volume;
  }

  static void eofReached(Model& m, const Value& v) {
    m.isAtEnd_ = held<bool>(v).value_or(false);
    m.checkEnd();
  }

  static void fullscreen(Model& m, const Value& v) {
    m.isFullscreen_ = held<bool>(v).value_or(false);
  }

  static void pausedForCache(Model& m, const Value& v) {
    if (held<bool>(v).value_or(false)) {
      m.buffering_ = Buffering::buffering;
    } else if (m.isLoaded_) {
      m.buffering_ = Buffering::ready;
    }
    m.updateStatus();
  }

  static void voConfigured(Model& m, const Value& v) {
    if (held<bool>(v).value_or(false)) {
      m.showVideoReady();
    } else {
      m.player().setVideoReady(false);
      if (m.hasPicture_) m.tidyUp_();
    }
  }

  static void path(Model& m, const Value& v) {
    if (const auto path = held<std::string>(v)) m.takePath(*path);
  }

  static void hwdecCurrent(Model& m, const Value& v) {
    m.trial_.decodes(isHardwareDecoder(held<std::string>(v)));
    const bool forced = m.hardware_.forcedSoftware;
    if (const auto text = decoderText(held<std::string>(v), forced, m.isLoaded_)) {
      m.decoder_ = *text;
    }
  }

  static void trackList(Model& m, const Value& v) { m.publishTracks(v); }

  static void chapterList(Model& m, const Value& v) { m.chapters_ = tromelo::chapterList(v); }

  static void chapter(Model& m, const Value& v) {
    constexpr std::int64_t kLast = std::numeric_limits<int>::max();
    const auto position = held<std::int64_t>(v).value_or(-1);
    m.currentChapter_ =
        position < 0 ? std::nullopt : std::optional(static_cast<int>(std::min(position, kLast)));
  }

  static void playlist(Model& m, const Value& v) { m.takeQueue(playQueue(v)); }

  /// The queue's items say which is current.
  static void playlistPos(Model&, const Value&) {}

  static void speed(Model& m, const Value& v) {
    if (const auto speed = held<double>(v)) m.speed_ = *speed;
  }

  static void mute(Model& m, const Value& v) { m.isMuted_ = held<bool>(v).value_or(false); }

  static void subDelay(Model& m, const Value& v) { m.subtitleDelay_ = held<double>(v).value_or(0); }

  static void audioDelay(Model& m, const Value& v) { m.audioDelay_ = held<double>(v).value_or(0); }

  static void fileBegin(Model& m, const Value& v) {
    m.fileBegin_ = held<double>(v).value_or(0);
    m.showLinesOfSubtitles();
  }

  static void subCodepage(Model& m, const Value& v) {
    m.coding_.setCodepage(held<std::string>(v).value_or(""));
    m.showLinesOfSubtitles();
  }

  /// Anything but "no" is "inf" or a number of rounds.
  static bool loops(const Value& v) { return held<std::string>(v).value_or("no") != "no"; }

  static void loopFile(Model& m, const Value& v) { m.isLooping_ = loops(v); }

  static void loopPlaylist(Model& m, const Value& v) { m.isRepeatingAll_ = loops(v); }

  static void abLoopA(Model& m, const Value& v) {
    m.abLoop_ = AbLoop{loopMark(held<std::string>(v).value_or("no")), m.abLoop().end};
  }

  static void abLoopB(Model& m, const Value& v) {
    m.abLoop_ = AbLoop{m.abLoop().start, loopMark(held<std::string>(v).value_or("no"))};
  }
};

/// And of each that is a "fact".
template <auto Fact>
void PropertyMapping::keepFact(Model& m, const Value& v) {
  auto& fact = m.facts_.*Fact;
  const auto told = held<typename std::remove_cvref_t<decltype(fact)>::value_type>(v);
  if (told == fact) return;
  fact = told;
  m.publishFacts();
}

const PropertyMapping::Row& PropertyMapping::row(MpvProperty property) {
  constexpr bool session = true;
  constexpr bool lasting = false;
#define TROMELO_TAKE_fact(name) &keepFact<&FileFacts::name>
#define TROMELO_TAKE_state(name) &Actions::name
#define TROMELO_ROW(name, engineName, format, lifetime, target) \
  Row{lifetime, TROMELO_TAKE_##target(name)},
  static constexpr std::array kRows{TROMELO_MPV_PROPERTIES(TROMELO_ROW)};
  return kRows.at(std::size_t(property) - 1);
}

void PropertyMapping::apply(Model& model, MpvProperty property, const Value& value) {
  const Row& target = row(property);
  if (value.isNone() && target.ofSession) return;
  target.apply(model, value);
}

}  // namespace tromelo
