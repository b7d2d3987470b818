#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "engine/PreloadHook.h"
#include "films/FilmMemory.h"
#include "playback/MediaTrack.h"

namespace tromelo {

class Clock;

/// Sets an option of the engine for the file that it opens.
MpvPropertyWrite fileOption(const std::string& option, std::string value);

/// Brings each film back to where it was left, and remembers where it is left. Main thread only.
class FilmKeeper {
 public:
  /// Without a memory nothing is remembered. Both outlive it, and the engine.
  FilmKeeper(FilmMemory* memory, Clock& clock);
  ~FilmKeeper();
  FilmKeeper(const FilmKeeper&) = delete;
  FilmKeeper& operator=(const FilmKeeper&) = delete;

  /// What else is to be done with a film that is known, on the engine's thread.
  using Preparation = std::function<std::vector<PreloadHook::Wish>(const OpenedFile& file,
                                                                   const QByteArray& identity)>;
  /// For the engine. Empty without a memory.
  PreloadHook::Prepare prepareFile(const Preparation& also = {});

  /// Whether films go on where they were left.
  void setResumes(bool resumes) { session_->resumes = resumes; }

  /// What films of which nothing else is known begin with.
  void setForAll(AdjustmentValues values);

  /// The engine begins with this entry of its playlist.
  void started(std::int64_t entry);

  // What is remembered of it is what the person has chosen. Until they do, what was remembered
  // before stays, or it is left to the engine.
  void choseAudio() { choosesAudio_ = true; }
  void choseSubtitle() { choosesSubtitle_ = true; }
  void choseAudioDelay(double seconds) { next_.audioDelay = seconds; }
  void choseSubtitleDelay(double seconds) { next_.subtitleDelay = seconds; }
  void adjusted(const AdjustmentValues& values);
  /// The engine has these, and plays those that are selected; without any the film is at its end.
  void tracksChanged(const QList<MediaTrack>& audio, const QList<MediaTrack>& subtitles);

  /// Playback has come to this second: it is remembered now and then.
  void moved(double position);
  /// It is remembered at once.
  void keep();
  /// With the next move.
  void keepSoon() { isDue_ = true; }

  /// What plays; none until it is known, or where it can't be.
  const std::optional<FilmKey>& film() const { return film_; }
  /// What was changed about it when it was left; with the event that the file is loaded, not
  /// before.
  const AdjustmentValues& adjustments() const { return kept_.adjustments; }
  /// Where it went on, in seconds; none where it began at its beginning or where it was told to.
  std::optional<double> resumedAt() const { return resumedAt_; }

 private:
  struct Opened {
    OpenedFile file;
    FilmMemory::Known known;
    std::optional<double> resumedAt;
  };

  /// What the engine's thread knows of us, which may outlive us.
  struct Session {
    std::atomic<bool> resumes = true;
    std::mutex mutex;  // of the next
    AdjustmentValues forAll;
    AdjustmentValues adjustmentsForAll();
    FilmKeeper* keeper = nullptr;  // main thread only
  };

  void take(const Opened& opened);

  FilmMemory* const memory_;
  Clock& clock_;
  std::shared_ptr<Session> session_ = std::make_shared<Session>();
  std::int64_t entry_ = 0;
  std::optional<FilmKey> film_;
  std::string path_;
  FilmRecord kept_;  // as it is remembered
  FilmRecord next_;  // as it will be
  std::optional<double> resumedAt_;
  bool choosesAudio_ = false;
  bool choosesSubtitle_ = false;
  bool hasMoved_ = false;
  bool isDue_ = false;
  double lastKept_ = 0;  // of the clock
};

}  // namespace tromelo
