#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

#include "playback/FilmKeeper.h"

namespace tromelo {

/// Leaves word of the film that hardware decodes, so that one that takes the program down is
/// decoded in software from then on, until the drivers or the engine change. Nothing here waits for
/// the disk but the engine, for a moment. Main thread only.
class HardwareTrial {
 public:
  /// `folder` need not exist. `fell` is called when the film that begins is decoded in software for
  /// that reason; `isNew`: nobody has been told.
  HardwareTrial(const QString& folder, std::function<void(bool isNew)> fell);
  /// Waits until no word is left, for a second at most.
  ~HardwareTrial();
  HardwareTrial(const HardwareTrial&) = delete;
  HardwareTrial& operator=(const HardwareTrial&) = delete;

  /// For the engine's thread. May outlive us.
  FilmKeeper::Preparation preparation();

  /// The engine begins with this entry of its playlist.
  void started(std::int64_t entry);
  /// What decodes it, as often as it is told.
  void decodes(bool inHardware);
  /// Pictures, or sound, come.
  void played();
  /// With that entry; the program may be ending.
  void ended();
  void forgetAll();

 private:
  class Disk;
  struct Film {
    std::uint64_t number = 0;  // of the trial; each has its own
    QByteArray film;
    QByteArray engine;  // its versions
  };
  struct Session {
    HardwareTrial* trial = nullptr;  // main thread only
  };

  void take(std::int64_t entry, const Film& film, bool isSoftware, bool isNew);

  const std::function<void(bool isNew)> fell_;
  std::shared_ptr<Disk> disk_;
  std::shared_ptr<Session> session_ = std::make_shared<Session>();
  std::int64_t entry_ = 0;
  Film film_;  // that plays; without a number: none that is known
  bool isInHardware_ = false;
  bool isMarked_ = false;  // it is, or is about to be
};

}  // namespace tromelo
