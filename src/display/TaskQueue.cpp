#include "display/TaskQueue.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <utility>

namespace tromelo {

TaskQueue::TaskQueue() : fd_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

TaskQueue::~TaskQueue() {
  if (fd_ >= 0) ::close(fd_);
}

void TaskQueue::post(Task task) {
  {
    const std::scoped_lock lock(mutex_);
    if (!closed_) return push(std::move(task));
  }
  const std::scoped_lock lock(afterClose_);
  task();
}

void TaskQueue::postUnlessClosed(Task task) {
  const std::scoped_lock lock(mutex_);
  if (!closed_) push(std::move(task));
}

void TaskQueue::run() {
  std::uint64_t count = 0;
  [[maybe_unused]] const auto size = read(fd_, &count, sizeof count);
  std::vector<Task> tasks;
  {
    const std::scoped_lock lock(mutex_);
    tasks.swap(tasks_);
  }
  for (const Task& task : tasks) task();
}

void TaskQueue::close() {
  // The lock order keeps a late post() of another thread behind the tasks that came before it.
  const std::scoped_lock after(afterClose_);
  std::vector<Task> tasks;
  {
    const std::scoped_lock lock(mutex_);
    closed_ = true;
    tasks.swap(tasks_);
  }
  for (const Task& task : tasks) task();
}

/// With the lock.
void TaskQueue::push(Task task) {
  tasks_.push_back(std::move(task));
  if (tasks_.size() > 1) return;  // it was woken for the first
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto size = write(fd_, &one, sizeof one);
}

}  // namespace tromelo
