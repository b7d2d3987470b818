#pragma once

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>

#include "playback/QueueItem.h"

namespace tromelo {

/// How the engine gets on with the files that it was asked for: which failed, what they are called
/// and what comes after them. It tells in order of files that it was given, that start and that
/// fail, and that none is left; what they are called shows only in its playlist, which comes later,
/// as it may when several files have come and gone meanwhile.
class QueueProgress {
 public:
  struct Failure {
    QString title;           // empty where the engine doesn't tell
    QString reason;          // for people
    bool isNew = true;       // this one wasn't given before
    bool isSkipped = false;  // another file has started since
    bool isLast = false;     // none will
  };

  /// The engine was asked for a file in place of all others.
  void opened();
  /// It was asked for another behind them.
  void appended() { ++unanswered_; }
  /// It has taken the next of these.
  void queued(std::int64_t entry);
  /// It won't take one of them, maybe; it doesn't say which.
  void refused() { unanswered_ = ofBefore_ = 0; }

  void started();
  /// False when it matters no more, since the person has opened another file meanwhile.
  bool failed(std::int64_t entry, const QString& reason);
  void cameToRest() { isAtRest_ = true; }

  /// The first failure that has something new to tell, by the playlist that was reported last; one
  /// that is skipped or the last is given only once.
  std::optional<Failure> nextFailure(const PlayQueue& queue);

  /// Where the file is that came too late for the engine to go on to by itself. Whoever asks plays
  /// it.
  std::optional<qsizetype> takeLeftBehind(const PlayQueue& queue);

 private:
  struct Failed {
    std::int64_t entry;
    QString reason;
    bool isSkipped = false;
    bool isTold = false;
  };

  bool comesToNothing() const { return isAtRest_ && unanswered_ == 0 && !leftBehind_; }

  QList<Failed> failures_;  // in order; only the last may still be undecided
  int unanswered_ = 0;      // files that were asked for and aren't in the playlist yet
  int ofBefore_ = 0;        // of these, up to the one that takes the place of all others
  bool hasFailed_ = false;  // the file that started last
  bool isAtRest_ = false;
  std::optional<std::int64_t> leftBehind_;  // its entry
};

}  // namespace tromelo
