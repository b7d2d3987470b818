#pragma once

#include <QList>
#include <QUrl>
#include <functional>
#include <memory>
#include <string>

namespace tromelo {

/// Finds out which files are there without waiting: a share that is not connected may take minutes
/// to answer, or never do. Main thread only.
class FileExistence {
 public:
  struct Answer {
    QUrl file;
    bool exists = false;
  };

  /// Called from the event loop with the answers that have come in since the last time.
  using Listener = std::function<void(const QList<Answer>&)>;

  /// `exists` is called on other threads, and may still run when this object is gone.
  FileExistence(std::function<bool(const std::string& path)> exists, Listener listener);
  /// Answers that are still to come are dropped.
  ~FileExistence();

  void ask(const QList<QUrl>& files);

 private:
  class Mailbox;

  std::function<bool(const std::string&)> exists_;
  std::shared_ptr<Mailbox> mailbox_;
};

}  // namespace tromelo
