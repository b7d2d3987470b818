#include "playback/PropertyMapping.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "engine/MpvValue.h"
#include "playback/PlaybackModel.h"
#include "playback/VideoTexts.h"

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

struct PropertyMapping::Actions {
  /// Not used; the property is still observed.
  static void none(Model&, const Value&) {}

  /// Values of another kind than T leave the field as it is.
  template <auto Field, typename T>
  static void show(Model& m, const Value& v) {
    if (const auto value = held<T>(v)) m.*Field = *value;
  }

  /// Values of another kind than T count as `Otherwise`.
  template <auto Field, auto Otherwise>
  static void showOr(Model& m, const Value& v) {
    m.*Field = held<std::remove_const_t<decltype(Otherwise)>>(v).value_or(Otherwise);
  }

  /// Texts of which `Text` makes nothing leave the field as it is.
  template <auto Field, std::optional<QString> (*Text)(std::string_view)>
  static void showText(Model& m, const Value& v) {
    const auto* bytes = v.as<std::string>();
    if (const auto text = bytes ? Text(*bytes) : std::nullopt) m.*Field = *text;
  }

  /// Kept for what is made of it; none for values of another kind.
  template <auto Input>
  static void store(Model& m, const Value& v) {
    auto& input = m.inputs_.*Input;
    input = held<typename std::remove_cvref_t<decltype(input)>::value_type>(v);
  }

  template <auto Input>
  static void storeSignal(Model& m, const Value& v) {
    store<Input>(m, v);
    m.describeSignal();
  }

  template <auto Input>
  static void storeOutput(Model& m, const Value& v) {
    store<Input>(m, v);
    m.describeOutput();
  }

  template <auto Input>
  static void storeSize(Model& m, const Value& v) {
    store<Input>(m, v);
    if (const auto size = videoSizeText(m.inputs_.width, m.inputs_.height)) m.videoSize_ = *size;
  }

  template <auto Input>
  static void storeRate(Model& m, const Value& v) {
    store<Input>(m, v);
    const auto rate = frameRateText(m.inputs_.containerFps, m.inputs_.estimatedFps);
    if (rate) m.frameRate_ = *rate;
  }

  static void timePos(Model& m, const Value& v) {
    const double position = held<double>(v).value_or(NAN);
    if (!std::isfinite(position)) return;
    const double shown = m.elapsed_;
    if (position < shown || position - shown >= kPositionStep) m.elapsed_ = position;
    if (!m.isScrubbing_) m.scrubPosition_ = m.elapsed_.get();
    m.checkRestart();
  }

  static void duration(Model& m, const Value& v) {
    const double length = held<double>(v).value_or(0);
    m.duration_ = std::isfinite(length) && length > 0 ? length : 0;
  }

  static void pause(Model& m, const Value& v) {
    showOr<&Model::isPaused_, true>(m, v);
    m.updateStatus();
  }

  static void pausedForCache(Model& m, const Value& v) {
    if (held<bool>(v).value_or(false)) {
      m.buffering_ = QStringLiteral("Buffering");
    } else if (m.isLoaded_) {
      m.buffering_ = QStringLiteral("Ready");
    }
    m.updateStatus();
  }

  static void voConfigured(Model& m, const Value& v) {
    if (held<bool>(v).value_or(false)) {
      m.showVideoReady();
    } else {
      m.player().setVideoReady(false);
    }
  }

  static void path(Model& m, const Value& v) {
    if (const auto path = held<std::string>(v)) m.takePath(*path);
  }

  static void hwdecCurrent(Model& m, const Value& v) {
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

  static void playlist(Model& m, const Value& v) {
    m.queue_ = playQueue(v);
    m.settleFailures();
  }

  /// Anything but "no" is "inf" or a number of rounds.
  static void loopFile(Model& m, const Value& v) {
    m.isLooping_ = held<std::string>(v).value_or("no") != "no";
  }
};

struct PropertyMapping::Row {
  MpvProperty property;
  bool ofSession;
  void (*apply)(Model& m, const Value& v);
};

const PropertyMapping::Row& PropertyMapping::row(MpvProperty property) {
  using P = MpvProperty;
  using A = Actions;
  using I = SignalInputs;
  constexpr bool kSession = true;
  constexpr bool kLasting = false;
  constexpr std::int64_t kNoDrops = 0;
  static constexpr std::array kRows{
      Row{P::mediaTitle, kLasting, A::showText<&Model::title_, mediaTitleText>},
      Row{P::timePos, kLasting, A::timePos},
      Row{P::duration, kLasting, A::duration},
      Row{P::pause, kLasting, A::pause},
      Row{P::volume, kLasting, A::show<&Model::volume_, double>},
      Row{P::fullscreen, kLasting, A::showOr<&Model::isFullscreen_, false>},
      Row{P::voConfigured, kLasting, A::voConfigured},
      Row{P::pausedForCache, kLasting, A::pausedForCache},
      Row{P::width, kSession, A::storeSize<&I::width>},
      Row{P::height, kSession, A::storeSize<&I::height>},
      Row{P::containerFps, kSession, A::storeRate<&I::containerFps>},
      Row{P::estimatedFps, kSession, A::storeRate<&I::estimatedFps>},
      Row{P::videoFormat, kSession, A::showText<&Model::codec_, codecText>},
      Row{P::hwdecCurrent, kSession, A::hwdecCurrent},
      Row{P::fileFormat, kSession, A::showText<&Model::container_, containerText>},
      Row{P::decoderDrops, kLasting, A::showOr<&Model::decoderFrameDrops_, kNoDrops>},
      Row{P::outputDrops, kLasting, A::showOr<&Model::outputFrameDrops_, kNoDrops>},
      Row{P::gamma, kSession, A::storeSignal<&I::gamma>},
      Row{P::primaries, kSession, A::none},
      Row{P::colormatrix, kSession, A::storeSignal<&I::colormatrix>},
      Row{P::sigPeak, kSession, A::none},
      Row{P::dolbyVisionProfile, kSession, A::storeSignal<&I::dolbyVisionProfile>},
      Row{P::targetGamma, kSession, A::storeOutput<&I::targetGamma>},
      Row{P::targetPrimaries, kSession, A::storeOutput<&I::targetPrimaries>},
      Row{P::path, kSession, A::path},
      Row{P::trackList, kLasting, A::trackList},
      Row{P::chapterList, kLasting, A::chapterList},
      Row{P::chapter, kLasting, A::chapter},
      Row{P::playlist, kLasting, A::playlist},
      Row{P::playlistPos, kLasting, A::none},  // the queue's items say which is current
      Row{P::speed, kLasting, A::show<&Model::speed_, double>},
      Row{P::mute, kLasting, A::showOr<&Model::isMuted_, false>},
      Row{P::subDelay, kLasting, A::showOr<&Model::subtitleDelay_, 0.0>},
      Row{P::audioDelay, kLasting, A::showOr<&Model::audioDelay_, 0.0>},
      Row{P::loopFile, kLasting, A::loopFile},
  };
  static_assert([] {
    for (std::size_t i = 0; i < kRows.size(); ++i) {
      if (static_cast<std::size_t>(kRows[i].property) != i + 1) return false;
    }
    return true;
  }());
  return kRows.at(static_cast<std::size_t>(property) - 1);
}

void PropertyMapping::apply(Model& model, MpvProperty property, const Value& value) {
  const Row& target = row(property);
  if (value.isNone() && target.ofSession) return;
  target.apply(model, value);
}

bool PropertyMapping::isSessionProperty(MpvProperty property) { return row(property).ofSession; }

}  // namespace tromelo
