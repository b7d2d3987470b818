#include "platform/FileExistence.h"

#include <mutex>
#include <thread>
#include <utility>

#include "platform/FilePath.h"
#include "platform/MainThread.h"

namespace tromelo {

class FileExistence::Mailbox : public std::enable_shared_from_this<Mailbox> {
 public:
  Listener listener;  // main thread only

  void put(Answer answer) {
    const std::scoped_lock lock(mutex_);
    answers_.append(std::move(answer));
    if (answers_.size() > 1) return;  // what was posted for the first will take this one too
    postToMainThread([mailbox = shared_from_this()] { mailbox->deliver(); });
  }

 private:
  void deliver() {
    QList<Answer> answers;
    {
      const std::scoped_lock lock(mutex_);
      answers = std::exchange(answers_, {});
    }
    if (listener) listener(answers);
  }

  std::mutex mutex_;
  QList<Answer> answers_;
};

FileExistence::FileExistence(std::function<bool(const std::string&)> exists, Listener listener)
    : exists_(std::move(exists)), mailbox_(std::make_shared<Mailbox>()) {
  mailbox_->listener = std::move(listener);
}

FileExistence::~FileExistence() { mailbox_->listener = nullptr; }

void FileExistence::ask(const QList<QUrl>& files) {
  for (const QUrl& file : files) {
    // Detached, one thread for each file: neither another file nor our end waits for it.
    std::thread([file, exists = exists_, mailbox = mailbox_] {
      mailbox->put({file, exists(pathFromFileUrl(file))});
    }).detach();
  }
}

}  // namespace tromelo
