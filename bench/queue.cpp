// A queue of 5,000 files opened at once: from the call until all of it is published, next to libmpv
// given the same list by a client that does nothing else; and for how long the main thread was
// away.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "HeadlessParts.h"
#include "engine/MpvClientApi.h"
#include "platform/Clock.h"
#include "platform/FilePath.h"
#include "platform/UserDefaults.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

constexpr int kFiles = 5000;
constexpr int kRounds = 5;

double milliseconds(const QElapsedTimer& timer) { return double(timer.nsecsElapsed()) / 1e6; }

std::vector<std::string> queueOf(const char* clip) {
  std::vector<std::string> paths{clip};
  for (int i = 1; i < kFiles; ++i) {
    paths.push_back("/films/A series with a long name/Episode " + std::to_string(i) + ".mkv");
  }
  return paths;
}

MpvClientApi headlessApi() {
  MpvClientApi api = MpvClientApi::libmpv();
  api.setOptionString = [](mpv_handle* handle, const char* name, const char* value) {
    return mpv_set_option_string(handle, name, name == std::string("vo") ? "null" : value);
  };
  api.initialize = [](mpv_handle* handle) {
    mpv_set_option_string(handle, "ao", "null");
    return mpv_initialize(handle);
  };
  return api;
}

/// The greatest time between two turns of the event loop, and what became of it.
class Heartbeat {
 public:
  Heartbeat() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { beat(); });
    since_.start();
    timer_.start(0);
  }
  double longest() const { return longest_; }

 private:
  void beat() {
    longest_ = std::max(longest_, milliseconds(since_));
    since_.restart();
  }

  QTimer timer_;
  QElapsedTimer since_;
  double longest_ = 0;
};

void send(mpv_handle* handle, const std::string& path, const char* mode) {
  const char* arguments[] = {"loadfile", path.c_str(), mode, nullptr};
  while (mpv_command_async(handle, 0, arguments) == MPV_ERROR_EVENT_QUEUE_FULL) {
    mpv_wait_event(handle, 1);
  }
}

/// Until libmpv alone has the whole list; writing its log is more than half of that.
double plainMilliseconds(const std::vector<std::string>& paths, const QString& logFile) {
  const MpvClientApi api = headlessApi();
  mpv_handle* handle = mpv_create();
  api.setOptionString(handle, "vo", "null");
  mpv_set_option_string(handle, "idle", "yes");
  mpv_set_option_string(handle, "log-file", qPrintable(logFile));
  api.initialize(handle);
  mpv_observe_property(handle, 1, "playlist-count", MPV_FORMAT_INT64);
  QElapsedTimer timer;
  timer.start();
  for (std::size_t i = 0; i < paths.size(); ++i) send(handle, paths[i], i ? "append" : "replace");
  for (std::int64_t count = 0; count < std::int64_t(paths.size());) {
    const mpv_event* event = mpv_wait_event(handle, 10);
    if (event->event_id != MPV_EVENT_PROPERTY_CHANGE) continue;
    const auto* change = static_cast<mpv_event_property*>(event->data);
    if (change->format == MPV_FORMAT_INT64) count = *static_cast<std::int64_t*>(change->data);
  }
  const double result = milliseconds(timer);
  mpv_terminate_destroy(handle);
  return result;
}

struct Measured {
  double milliseconds = 0;
  double longestAway = 0;
};

Measured modelMilliseconds(const QList<QUrl>& urls, const QString& directory) {
  SystemClock clock;
  NoChooser chooser;
  UserDefaults defaults(directory + "/defaults.json");
  PlaybackModel model({.api = headlessApi(),
                       .clock = clock,
                       .files = chooser,
                       .defaults = defaults,
                       .diagnosticsDirectory = directory,
                       .makePlayer = [](PlaybackModel&) { return std::make_unique<NoPlayer>(); }});
  Measured result;
  if (const QString fault = model.errorMessage(); !fault.isEmpty()) std::exit(failed(fault));
  QCoreApplication::processEvents();
  QObject::connect(&model, &PlaybackModel::queueChanged, &model, [&] {
    if (model.queue().size() == urls.size()) QCoreApplication::exit();
  });
  const Heartbeat heartbeat;
  QElapsedTimer timer;
  QTimer::singleShot(0, &model, [&] {
    timer.start();
    model.open(urls);
  });
  QCoreApplication::exec();
  result.milliseconds = milliseconds(timer);
  QCoreApplication::processEvents();
  result.longestAway = heartbeat.longest();
  model.engine().terminate([] { QCoreApplication::exit(); });
  QCoreApplication::exec();
  return result;
}

int run(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: bench_queue CLIP\n", stderr);
    return 2;
  }
  const auto paths = queueOf(argv[1]);
  QList<QUrl> urls;
  for (const std::string& path : paths) urls.append(fileUrlFromPath(path));
  const QTemporaryDir directory;
  double plain = INFINITY;
  double logging = INFINITY;
  Measured best{INFINITY, INFINITY};
  for (int round = 0; round < kRounds; ++round) {
    plain = std::min(plain, plainMilliseconds(paths, {}));
    logging = std::min(logging, plainMilliseconds(paths, directory.filePath("plain.log")));
    const Measured ours = modelMilliseconds(urls, directory.filePath("tromelo"));
    best.milliseconds = std::min(best.milliseconds, ours.milliseconds);
    best.longestAway = std::min(best.longestAway, ours.longestAway);
  }
  std::printf(
      "queue of %d files: libmpv alone %.0f ms, with the log that Tromelo has it write %.0f ms, "
      "Tromelo %.0f ms (%.2f); its main thread was away for up to %.0f ms\n",
      kFiles, plain, logging, best.milliseconds, best.milliseconds / logging, best.longestAway);
  return 0;
}

}  // namespace

}  // namespace tromelo

int main(int argc, char** argv) { return tromelo::run(argc, argv); }
