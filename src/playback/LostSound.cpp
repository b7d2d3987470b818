#include "playback/LostSound.h"

#include <algorithm>
#include <utility>

#include "engine/MpvEngine.h"
#include "engine/MpvValue.h"
#include "playback/SoundDevices.h"

namespace tromelo {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// A sound server that was ended is back within a second, a device as soon as it is plugged in.
constexpr milliseconds kFirstPause = seconds(1);
constexpr milliseconds kLongestPause = seconds(16);
constexpr milliseconds kBetweenLooks = seconds(2);

// libmpv 0.40 reads a film a second ahead, and where it is asked for sound after it has read all,
// it may wait for that sound for ever: no end comes, or it says that it buffers.
constexpr double kLeastRest = 2;  // seconds

template <typename T>
std::optional<T> held(const MpvValue& value) {
  const auto* node = value.as<MpvNode>();
  const auto* found = node ? node->as<T>() : nullptr;
  return found ? std::optional(*found) : std::nullopt;
}

}  // namespace

LostSound::LostSound(Clock& clock, MpvEngine& engine, SoundDevices& devices,
                     std::function<void()> tell)
    : clock_(clock), engine_(engine), soundDevices_(devices), tell_(std::move(tell)) {}

void LostSound::filmStands() {
  if (!silent_.empty()) return;
  // A film that has yet to be read or decoded stands too.
  engine_.readNode("demuxer-cache-idle", [this](const MpvValue& isIdle) {
    if (!held<bool>(isIdle).value_or(false)) return standsAt_.reset();
    engine_.readNode("audio-pts", [this](const MpvValue& time) { takeSoundTime(time); });
  });
}

void LostSound::takeSoundTime(const MpvValue& time) {
  const auto now = held<double>(time);
  if (std::exchange(standsAt_, now) != now || !now) return;
  engine_.readProperty("current-ao", [this](const std::optional<std::string>& driver) {
    if (driver && silent_.empty()) goOnSilently(*driver);
  });
}

void LostSound::goOnSilently(const std::string& driver) {
  silent_ = driver;
  standsAt_.reset();
  engine_.setProperty("ao", "null");
  tell_();
  tryLater([this] { lookForDevice(); });
}

void LostSound::lookForDevice() {
  soundDevices_.refresh([this] {
    if (silent_.empty()) return;  // the file has ended meanwhile
    if (soundDevices_.hasOneOf(silent_)) return soundOn();
    next_ = clock_.after(kBetweenLooks, [this] { lookForDevice(); });
  });
}

void LostSound::soundOn() {
  if (!std::exchange(silent_, {}).empty()) engine_.setProperty("ao", "");
}

/// Each try holds up the picture a little, so a machine without sound is left alone after some.
void LostSound::failed() {
  if (pause_ == kLongestPause || !silent_.empty()) return;
  tryLater([this] {
    soundDevices_.tryWanted();
    tryAgain();
  });
}

void LostSound::tryLater(std::function<void()> attempt) {
  pause_ = std::clamp(2 * pause_, kFirstPause, kLongestPause);
  next_ = clock_.after(pause_, std::move(attempt));
}

/// The engine takes "auto" for the choice that it has made already.
void LostSound::tryAgain() {
  engine_.readNode("time-remaining", [this, entry = entry_](const MpvValue& rest) {
    if (entry != entry_) return;  // that file has ended meanwhile, the track is its own
    if (held<double>(rest).value_or(0) >= kLeastRest)
      engine_.setProperty("file-local-options/aid", std::to_string(track_));
  });
}

void LostSound::fileEnded() {
  entry_ = 0;
  track_ = kFirstTrack;
  standsAt_.reset();
  pause_ = milliseconds(0);
  next_.reset();
  soundOn();
}

}  // namespace tromelo
