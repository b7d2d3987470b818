#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "playback/QueueItem.h"

namespace tromelo {

/// Whether the engine will go on to another file when the current one fails, and which one that is.
/// The engine tells of files that start and end before it tells of its playlist and of titles, so
/// that several short-lived ones can come and go in between (three missing files opened at once, or
/// a busy main thread). Here the reported queue is brought up to what was asked for and has started
/// since.
class QueueOutlook {
 public:
  /// A file was asked for in place of all others; `title` is its name for people.
  void opened(const QString& title);
  void appended(const QString& title);
  /// The engine was asked for the item at this position of its playlist.
  void willStart(qsizetype position) { jump_ = position; }
  /// Something was taken from the engine's playlist: the next report may be shorter.
  void removed() { awaitsMore_ = false; }
  void fileStarted();
  void reported(const PlayQueue& queue);

  bool hasNext() const { return position_ < queue_.size() - 1; }

  /// Where in `queue` the engine would have gone on, had it not come to rest at the last failure.
  std::optional<qsizetype> leftOver(const PlayQueue& queue) const;

  /// The name of the file that started last, while the engine has not told of it yet.
  std::optional<QString> unreportedTitle() const;

 private:
  bool isSameFile(const PlayQueue& queue, qsizetype current) const;

  PlayQueue queue_;
  qsizetype position_ = -1;        // in queue_, of the file that started last
  std::optional<qsizetype> jump_;  // where the next file starts, if not after the last
  bool awaitsFirst_ = false;       // reports are of what played before
  bool awaitsMore_ = false;        // appended files that no report has shown yet
  std::vector<qsizetype> left_;    // positions before each start since the last report
  bool reportIsAhead_ = false;     // it told of a file whose start has not been told
};

}  // namespace tromelo
