// Preloaded into the program, where TROMELO_GAPS names the file to write to: posts something to the
// main thread again and again, and measures how long that waits.

#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>
#include <time.h>
#include <unistd.h>

#include <QCoreApplication>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "MainThreadGaps.h"

namespace tromelo::testing {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

constexpr std::chrono::milliseconds kPause(20);

/// Shared by the two threads; whoever is last ends it.
struct Watch {
  GapsFound* found = nullptr;
  std::mutex mutex;
  std::condition_variable answered;
  bool isAnswered = false;
  bool hasEnded = false;  // the main thread takes nothing any more
  microseconds busy{};    // of the main thread, when it last answered
};

/// Of the thread that calls.
microseconds processorTime() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return std::chrono::duration_cast<microseconds>(std::chrono::seconds(time.tv_sec) +
                                                  std::chrono::nanoseconds(time.tv_nsec));
}

void keepLonger(std::atomic<std::uint32_t>& longest, microseconds gap) {
  const auto count = std::uint32_t(gap.count());
  auto before = longest.load();
  while (before < count && !longest.compare_exchange_weak(before, count)) {
  }
}

void answer(Watch& watch) {
  const std::scoped_lock lock(watch.mutex);
  watch.busy = processorTime();
  watch.isAnswered = true;
  watch.answered.notify_one();
}

/// False once the main thread takes nothing any more.
bool ask(const std::shared_ptr<Watch>& watch) {
  std::unique_lock lock(watch->mutex);
  if (watch->hasEnded) return false;
  watch->isAnswered = false;
  const auto start = Clock::now();
  const auto busy = watch->busy;
  QMetaObject::invokeMethod(qApp, [watch] { answer(*watch); }, Qt::QueuedConnection);
  watch->answered.wait(lock, [&] { return watch->isAnswered || watch->hasEnded; });
  if (watch->hasEnded) return false;
  keepLonger(watch->found->longest, std::chrono::duration_cast<microseconds>(Clock::now() - start));
  keepLonger(watch->found->longestBusy, watch->busy - busy);
  return true;
}

void run(const std::shared_ptr<Watch>& watch) {
  pthread_setname_np(pthread_self(), "watch");
  while (ask(watch)) std::this_thread::sleep_for(kPause);
}

GapsFound* mapped(const char* path) {
  const int file = open(path, O_RDWR | O_CLOEXEC);
  void* memory = mmap(nullptr, sizeof(GapsFound), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  close(file);
  return memory == MAP_FAILED ? nullptr : static_cast<GapsFound*>(memory);
}

/// In the main thread, when the application object has been made.
void begin() {
  const char* path = std::getenv("TROMELO_GAPS");
  auto watch = std::make_shared<Watch>();
  watch->found = path ? mapped(path) : nullptr;
  unsetenv("TROMELO_GAPS");  // it is no business of our children's
  if (!watch->found) return;
  QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [watch] {
    const std::scoped_lock lock(watch->mutex);
    watch->hasEnded = true;
    watch->answered.notify_one();
  });
  // Not before the loop runs.
  QMetaObject::invokeMethod(
      qApp, [watch] { std::thread(run, watch).detach(); }, Qt::QueuedConnection);
}

Q_COREAPP_STARTUP_FUNCTION(begin)

}  // namespace

}  // namespace tromelo::testing
