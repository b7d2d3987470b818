#include "platform/Timeline.h"

#include <pthread.h>
#include <time.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>
#include <string>
#include <vector>

namespace tromelo {

namespace {

struct Step {
  double at;  // milliseconds
  std::string thread;
  const char* what;
};

std::atomic<bool> isKept = false;
std::mutex stepsMutex;
std::vector<Step> steps;
double processStart = 0;  // milliseconds of the same clock

double millisecondsNow() {
  timespec now{};
  clock_gettime(CLOCK_BOOTTIME, &now);
  return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

/// Field 22 of what the kernel tells of a process; the second, its name, may hold anything.
double millisecondsOfStart() {
  QFile stat(QStringLiteral("/proc/self/stat"));
  if (!stat.open(QFile::ReadOnly)) return millisecondsNow();
  const QByteArray text = stat.readAll();
  const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
  return fields.value(22 - 3).toDouble() * 1e3 / double(sysconf(_SC_CLK_TCK));
}

std::string threadName() {
  if (getpid() == gettid()) return "main";
  std::array<char, 16> name{};
  pthread_getname_np(pthread_self(), name.data(), name.size());
  return name.data();
}

}  // namespace

void Timeline::begin() {
  processStart = millisecondsOfStart();
  isKept = true;
}

bool Timeline::isRunning() { return isKept; }

void Timeline::note(const char* step) {
  if (!isKept) return;
  const double at = millisecondsNow() - processStart;
  const std::scoped_lock lock(stepsMutex);
  if (std::ranges::find(steps, step, &Step::what) == steps.end())
    steps.push_back({at, threadName(), step});
}

void Timeline::finish(const char* step, std::FILE* out) {
  note(step);
  if (!isKept.exchange(false)) return;
  const std::scoped_lock lock(stepsMutex);
  std::ranges::stable_sort(steps, {}, &Step::at);
  double before = 0;
  for (const Step& done : steps) {
    std::fprintf(out, "%7.1f ms  +%6.1f  %-16s %s\n", done.at, done.at - before,
                 done.thread.c_str(), done.what);
    before = done.at;
  }
}

}  // namespace tromelo
