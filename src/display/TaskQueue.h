#pragma once

#include <functional>
#include <mutex>
#include <vector>

namespace tromelo {

/// Work that other threads hand to the display's thread. Outlives that thread.
class TaskQueue {
 public:
  using Task = std::function<void()>;

  TaskQueue();
  ~TaskQueue();
  TaskQueue(const TaskQueue&) = delete;
  TaskQueue& operator=(const TaskQueue&) = delete;

  /// Readable while there is work; -1 when the system gave none.
  int fd() const { return fd_; }

  /// Any thread. Runs on the display's thread; once the queue is closed, at once in this one, one
  /// task at a time. Such a task must not need the display any more.
  void post(Task task);

  /// Any thread. Like post(), but forgotten once the queue is closed.
  void postUnlessClosed(Task task);

  /// The display's thread only.
  void run();
  /// The display's thread only, when nothing of the display is left: runs what is waiting.
  void close();

 private:
  void push(Task task);

  int fd_;
  std::mutex mutex_;
  std::mutex afterClose_;
  bool closed_ = false;
  std::vector<Task> tasks_;
};

}  // namespace tromelo
