#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "engine/MpvValue.h"
#include "platform/Clock.h"

namespace tromelo {

class MpvEngine;
class SoundDevices;

/// Keeps a film going whose sound has nowhere to go, and brings its sound back. Main thread only.
class LostSound {
 public:
  /// `tell` is called where a film goes on without sound. All outlive it.
  LostSound(Clock& clock, MpvEngine& engine, SoundDevices& devices, std::function<void()> tell);

  /// The film stands still although the engine answers. That is so where the sound server has no
  /// device: it takes no sound, and the picture waits for the sound.
  void filmStands();
  void filmMoves() { standsAt_.reset(); }

  /// `entry` is the engine's number for the file.
  void started(std::int64_t entry) { entry_ = entry; }
  /// The engine plays this track, its number for it.
  void plays(std::int64_t track) { track_ = track; }
  /// The engine couldn't open any device; it is asked again a few times.
  void failed();
  /// The engine may open a device now, unless the film is about to end.
  void tryAgain();

  /// With the next file the engine tries for itself.
  void fileEnded();

 private:
  static constexpr std::int64_t kFirstTrack = 1;

  void takeSoundTime(const MpvValue& time);
  void goOnSilently(const std::string& driver);
  void lookForDevice();
  void soundOn();
  void tryLater(std::function<void()> attempt);

  Clock& clock_;
  MpvEngine& engine_;
  SoundDevices& soundDevices_;
  const std::function<void()> tell_;
  std::int64_t entry_ = 0;  // 0: between files
  std::int64_t track_ = kFirstTrack;
  std::optional<double> standsAt_;  // seconds of the sound, when it was last looked at
  std::string silent_;              // the driver that took no sound; empty: the engine plays to one
  std::chrono::milliseconds pause_{0};
  std::unique_ptr<Clock::Timer> next_;
};

}  // namespace tromelo
