#include "playback/PropertyMapping.h"

#include <array>
#include <cmath>

#include "engine/MpvValue.h"
#include "platform/FilePath.h"
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

bool flag(const Value& value, bool otherwise) { return held<bool>(value).value_or(otherwise); }
double number(const Value& value, double otherwise) {
  return held<double>(value).value_or(otherwise);
}
std::int64_t integer(const Value& value) { return held<std::int64_t>(value).value_or(0); }
std::optional<std::string> text(const Value& value) { return held<std::string>(value); }

std::optional<QString> upper(const std::optional<std::string>& name) {
  return name ? std::optional(QString::fromUtf8(*name).toUpper()) : std::nullopt;
}

/// The smallest step of the position that is worth showing.
constexpr double kPositionStep = 0.2;

}  // namespace

/// What becomes of one property, where a line is not enough.
struct PropertyMapping::Actions {
  /// Values of another kind leave the field as it is.
  template <typename T>
  static void show(PublishedField<Model, T>& field, const std::optional<T>& value) {
    if (value) field = *value;
  }

  static void timePos(Model& m, const Value& v) {
    const double position = number(v, std::nan(""));
    if (!std::isfinite(position)) return;
    const double shown = m.elapsed_;
    if (position < shown || position - shown >= kPositionStep) m.elapsed_ = position;
    if (!m.isScrubbing_) m.scrubPosition_ = m.elapsed_;
  }

  static void duration(Model& m, const Value& v) {
    const double length = number(v, 0);
    m.duration_ = std::isfinite(length) && length > 0 ? length : 0;
  }

  static void voConfigured(Model& m, const Value& v) {
    if (flag(v, false)) {
      m.showVideoReady();
    } else {
      m.player().setVideoReady(false);
    }
  }

  static void pausedForCache(Model& m, const Value& v) {
    if (flag(v, false)) {
      m.buffering_ = QStringLiteral("Buffering");
    } else if (m.isLoaded_) {
      m.buffering_ = QStringLiteral("Ready");
    }
    m.updateStatus();
  }

  static void path(Model& m, const Value& v) {
    const auto path = text(v);
    if (!path) return;
    m.currentPath_ = path;
    m.lastURL_ = fileUrlFromPath(*path);
    m.hardware_.forcedSoftware = m.hardware_.softwarePaths.contains(*path);
  }

  static void showVideoSize(Model& m) {
    if (const auto size = videoSizeText(m.inputs_.width, m.inputs_.height)) m.videoSize_ = *size;
  }

  static void showFrameRate(Model& m) {
    const auto rate = frameRateText(m.inputs_.containerFps, m.inputs_.estimatedFps);
    if (rate) m.frameRate_ = *rate;
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
  constexpr bool kSession = true;
  constexpr bool kLasting = false;
  constexpr auto kUnused = [](Model&, const Value&) {};
  // clang-format off
  static constexpr std::array kRows{
    Row{P::mediaTitle, kLasting, [](Model& m, const Value& v) { A::show(m.title_, mediaTitleText(text(v).value_or(""))); }},
    Row{P::timePos, kLasting, A::timePos},
    Row{P::duration, kLasting, A::duration},
    Row{P::pause, kLasting, [](Model& m, const Value& v) { m.isPaused_ = flag(v, true); m.updateStatus(); }},
    Row{P::volume, kLasting, [](Model& m, const Value& v) { A::show(m.volume_, held<double>(v)); }},
    Row{P::fullscreen, kLasting, [](Model& m, const Value& v) { m.isFullscreen_ = flag(v, false); }},
    Row{P::voConfigured, kLasting, A::voConfigured},
    Row{P::pausedForCache, kLasting, A::pausedForCache},
    Row{P::width, kSession, [](Model& m, const Value& v) { m.inputs_.width = held<std::int64_t>(v); A::showVideoSize(m); }},
    Row{P::height, kSession, [](Model& m, const Value& v) { m.inputs_.height = held<std::int64_t>(v); A::showVideoSize(m); }},
    Row{P::containerFps, kSession, [](Model& m, const Value& v) { m.inputs_.containerFps = held<double>(v); A::showFrameRate(m); }},
    Row{P::estimatedFps, kSession, [](Model& m, const Value& v) { m.inputs_.estimatedFps = held<double>(v); A::showFrameRate(m); }},
    Row{P::videoFormat, kSession, [](Model& m, const Value& v) { A::show(m.codec_, upper(text(v))); }},
    Row{P::hwdecCurrent, kSession, kUnused},
    Row{P::fileFormat, kSession, [](Model& m, const Value& v) { A::show(m.container_, containerText(text(v).value_or(""))); }},
    Row{P::decoderDrops, kLasting, [](Model& m, const Value& v) { m.decoderFrameDrops_ = integer(v); }},
    Row{P::outputDrops, kLasting, [](Model& m, const Value& v) { m.outputFrameDrops_ = integer(v); }},
    Row{P::gamma, kSession, [](Model& m, const Value& v) { m.inputs_.gamma = text(v); }},
    Row{P::primaries, kSession, kUnused},
    Row{P::colormatrix, kSession, [](Model& m, const Value& v) { m.inputs_.colormatrix = text(v); }},
    Row{P::sigPeak, kSession, kUnused},
    Row{P::dolbyVisionProfile, kSession, [](Model& m, const Value& v) { m.inputs_.dolbyVisionProfile = held<std::int64_t>(v); }},
    Row{P::targetGamma, kSession, [](Model& m, const Value& v) { m.inputs_.targetGamma = text(v); }},
    Row{P::targetPrimaries, kSession, [](Model& m, const Value& v) { m.inputs_.targetPrimaries = text(v); }},
    Row{P::path, kSession, A::path},
    Row{P::trackList, kLasting, kUnused},
    Row{P::chapterList, kLasting, kUnused},
    Row{P::chapter, kLasting, kUnused},
    Row{P::playlist, kLasting, [](Model& m, const Value& v) { m.publishQueue(playQueue(v)); }},
    Row{P::playlistPos, kLasting, kUnused},  // the queue's items say which is current
    Row{P::speed, kLasting, [](Model& m, const Value& v) { A::show(m.speed_, held<double>(v)); }},
    Row{P::mute, kLasting, [](Model& m, const Value& v) { m.isMuted_ = flag(v, false); }},
    Row{P::subDelay, kLasting, [](Model& m, const Value& v) { m.subtitleDelay_ = number(v, 0); }},
    Row{P::audioDelay, kLasting, [](Model& m, const Value& v) { m.audioDelay_ = number(v, 0); }},
    // Anything but "no" is a number of rounds or "inf".
    Row{P::loopFile, kLasting, [](Model& m, const Value& v) { m.isLooping_ = text(v).value_or("no") != "no"; }},
  };
  // clang-format on
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
