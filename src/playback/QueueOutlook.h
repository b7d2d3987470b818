#pragma once

#include <QString>

#include "playback/QueueItem.h"

namespace tromelo {

/// Whether the engine will go on to another file when the current one fails. The engine tells of
/// files that start and end before it tells of its playlist, so that several short-lived ones can
/// come and go between two reports of it (three missing files opened at once, or a busy main
/// thread). Here the reported queue is brought up to what was asked for and has started since.
class QueueOutlook {
 public:
  /// `count` files were asked for, in place of all others.
  void opened(const QString& firstPath, qsizetype count);
  void appended(qsizetype count);
  void fileStarted();
  void reported(const PlayQueue& queue);

  bool hasNext() const { return position_ < count_ - 1; }

 private:
  QString awaitedFirst_;     // empty: the reported queue is the one that was asked for
  bool awaitsMore_ = false;  // appended files that no report has shown yet
  qsizetype count_ = 0;
  qsizetype position_ = 0;  // of the file that started last
  // The last report told of a file whose start had not been told yet.
  bool reportIsAhead_ = false;
  bool startedSinceReport_ = false;
};

}  // namespace tromelo
