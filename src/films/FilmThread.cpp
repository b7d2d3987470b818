#include "films/FilmThread.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

#include "films/FilmStore.h"

namespace tromelo {

namespace {

constexpr std::chrono::seconds kPatienceAtTheEnd(2);
constexpr std::chrono::seconds kRetry(5);
/// More than a person plays while a disk is full.
constexpr std::size_t kMostFailed = 1000;

}  // namespace

/// What the thread and those who ask share; it lives as long as the last of them.
class FilmThread::Queue {
 public:
  struct Task {
    Job job;
    bool writes = false;
    QByteArray about = {};
  };

  explicit Queue(std::function<void(const QString&)> fault) : fault_(std::move(fault)) {}

  void put(Task task) {
    {
      const std::scoped_lock lock(mutex_);
      if (ends_) return;
      const bool replaces =
          !tasks_.empty() && !task.about.isEmpty() && tasks_.back().about == task.about;
      if (replaces) tasks_.pop_back();
      tasks_.push_back(std::move(task));
    }
    wake_.notify_one();
  }

  void run(const QString& path) {
    {
      FilmStore store(path);
      std::unique_lock lock(mutex_);
      while (waitForWork(lock)) work(lock, store);
    }
    const std::scoped_lock lock(mutex_);
    hasEnded_ = true;
    ended_.notify_all();
  }

  void end() {
    std::unique_lock lock(mutex_);
    ends_ = true;
    wake_.notify_one();
    ended_.wait_for(lock, kPatienceAtTheEnd, [this] { return hasEnded_; });
  }

 private:
  /// False when all is done and nothing more will come.
  bool waitForWork(std::unique_lock<std::mutex>& lock) {
    const auto isDue = [this] { return ends_ || !tasks_.empty(); };
    if (failed_.empty())
      wake_.wait(lock, isDue);
    else
      wake_.wait_for(lock, kRetry, isDue);
    return !tasks_.empty() || (!failed_.empty() && !std::exchange(wasLastTry_, ends_));
  }

  void work(std::unique_lock<std::mutex>& lock, FilmStore& store) {
    std::deque<Task> tasks = std::exchange(tasks_, {});
    lock.unlock();
    // In their order: what failed comes first, and holds back what was to be written after it.
    while (!failed_.empty() && perform(failed_.front(), store)) failed_.pop_front();
    for (Task& task : tasks) {
      const bool waits = task.writes && !failed_.empty();
      if ((waits || !perform(task, store)) && task.writes) failed_.push_back(std::move(task));
    }
    // A file that will never take them needs no list of them.
    while (failed_.size() > (store.isOff() ? 0 : kMostFailed)) failed_.pop_front();
    lock.lock();
  }

  bool perform(const Task& task, FilmStore& store) {
    const bool isDone = task.job(store);
    const QString fault = store.takeFault();
    if (!fault.isEmpty() && told_.insert(fault).second) fault_(fault);
    return isDone;
  }

  const std::function<void(const QString&)> fault_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::condition_variable ended_;
  std::deque<Task> tasks_;
  bool ends_ = false;
  bool hasEnded_ = false;
  // The thread's own.
  std::deque<Task> failed_;
  std::set<QString> told_;
  bool wasLastTry_ = false;
};

FilmThread::FilmThread(QString path, std::function<void(const QString&)> fault)
    : queue_(std::make_shared<Queue>(std::move(fault))) {
  // Detached, since a disk that hangs is not waited for at the end.
  std::thread([queue = queue_, path = std::move(path)] { queue->run(path); }).detach();
  read([](FilmStore& store) {
    store.open();
    return true;
  });
}

FilmThread::~FilmThread() { queue_->end(); }

void FilmThread::read(Job job) const { queue_->put({.job = std::move(job)}); }

void FilmThread::write(Job job, const QByteArray& about) const {
  queue_->put({.job = std::move(job), .writes = true, .about = about});
}

}  // namespace tromelo
