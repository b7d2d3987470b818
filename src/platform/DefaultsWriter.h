#pragma once

#include <QString>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include "platform/DefaultsFile.h"

namespace tromelo {

/// Brings changes of stored values to their file on a thread of its own: a disk takes its time, and
/// a slider that is dragged changes sixty times a second. What comes within a moment is written in
/// one go. The destructor waits until everything is written, or has failed.
class DefaultsWriter {
 public:
  /// `failed` is called with one sentence for the person, on the thread.
  DefaultsWriter(QString path, std::function<void(const QString&)> failed);
  ~DefaultsWriter();
  DefaultsWriter(const DefaultsWriter&) = delete;
  DefaultsWriter& operator=(const DefaultsWriter&) = delete;

  /// Returns at once. What can't be written is tried again with the next change, and at the end.
  void write(const DefaultsPath& path, const DefaultsChange& change);

  /// Waits until all that was changed before is written, or has failed.
  void flush();

 private:
  void run();
  void keep(DefaultsChanges failed);
  void writeChanges(std::unique_lock<std::mutex>& lock);

  const QString path_;
  const std::function<void(const QString&)> failed_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::condition_variable written_;
  DefaultsChanges changes_;
  bool dirty_ = false;  // there are changes that nobody has tried to write
  bool busy_ = false;
  bool hurry_ = false;  // somebody waits
  bool ends_ = false;
  std::thread thread_;  // the last to be made
};

}  // namespace tromelo
