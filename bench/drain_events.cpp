// Property events a second through translation and model, without libmpv's own share: a table of
// client functions hands out prepared events, in the mix of a file that plays.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <string>
#include <vector>

#include "HeadlessParts.h"
#include "engine/MpvClientApi.h"
#include "platform/Clock.h"
#include "platform/UserDefaults.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

/// What one event of each kind points to. Lives as long as the events do.
class Events {
 public:
  /// `count` events, each with a value of its own.
  explicit Events(std::size_t count) : count_(count) {}

  mpv_event* next() {
    if (given_ == count_) {
      given_ = 0;
      event_.event_id = MPV_EVENT_NONE;
      return &event_;
    }
    event_.event_id = MPV_EVENT_PROPERTY_CHANGE;
    event_.data = &change_;
    prepare(given_++);
    return &event_;
  }

 private:
  void prepare(std::size_t i) {
    switch (i % 8) {
      case 0:
        return number(MpvProperty::estimatedFps, 29.9 + double(i % 3) / 10);
      case 1:
        return integer(MpvProperty::outputDrops, std::int64_t(i));
      case 2:
        return text(MpvProperty::hwdecCurrent, "no");
      case 3:
        return flag(MpvProperty::pause, i % 16 == 3);
      case 4:
        return text(MpvProperty::mediaTitle, i % 16 == 4 ? "A film.mkv" : "Another film.mkv");
      default:
        return number(MpvProperty::timePos, double(i) * 0.033);
    }
  }

  void report(MpvProperty property, void* data) {
    event_.reply_userdata = static_cast<std::uint64_t>(property);
    change_ = {mpvPropertyName(property), static_cast<mpv_format>(mpvPropertyFormat(property)),
               data};
  }
  void number(MpvProperty property, double value) {
    number_ = value;
    report(property, &number_);
  }
  void integer(MpvProperty property, std::int64_t value) {
    integer_ = value;
    report(property, &integer_);
  }
  void flag(MpvProperty property, bool value) {
    flag_ = value;
    report(property, &flag_);
  }
  void text(MpvProperty property, const char* value) {
    text_ = const_cast<char*>(value);
    report(property, &text_);
  }

  std::size_t count_;
  std::size_t given_ = 0;
  mpv_event event_{};
  mpv_event_property change_{};
  double number_ = 0;
  std::int64_t integer_ = 0;
  int flag_ = 0;
  char* text_ = nullptr;
};

MpvClientApi preparedEngine(Events& events) {
  return {.create = [] { return reinterpret_cast<mpv_handle*>(1); },
          .setOptionString = [](mpv_handle*, const char*, const char*) { return 0; },
          .initialize = [](mpv_handle*) { return 0; },
          .observeProperty = [](mpv_handle*, std::uint64_t, const char*, mpv_format) { return 0; },
          .requestLogMessages = [](mpv_handle*, const char*) { return 0; },
          .setWakeupCallback = [](mpv_handle*, void (*)(void*), void*) {},
          .waitEvent = [&events](mpv_handle*, double) { return events.next(); },
          .commandAsync = [](mpv_handle*, std::uint64_t, const char**) { return 0; },
          .setPropertyAsync = [](mpv_handle*, std::uint64_t, const char*, mpv_format,
                                 void*) { return 0; },
          .getPropertyAsync = [](mpv_handle*, std::uint64_t, const char*, mpv_format) { return 0; },
          .clientApiVersion = [] { return static_cast<unsigned long>(MPV_CLIENT_API_VERSION); },
          .errorString = [](int) { return "error"; },
          .terminateDestroy = [](mpv_handle*) {},
          .createClient = [](mpv_handle*, const char*) -> mpv_handle* { return nullptr; }};
}

double drainedPerSecond(MpvEngine& engine, std::size_t count) {
  QElapsedTimer timer;
  timer.start();
  engine.drainEvents();
  return double(count) * 1e9 / double(timer.nsecsElapsed());
}

int run(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  constexpr std::size_t kEvents = 2'000'000;
  const QTemporaryDir directory;
  UserDefaults defaults(directory.filePath(QStringLiteral("defaults.json")));
  Events events(kEvents);
  SystemClock clock;
  NoChooser chooser;
  PlaybackModel model({.api = preparedEngine(events),
                       .clock = clock,
                       .files = chooser,
                       .defaults = defaults,
                       .diagnosticsDirectory = directory.path(),
                       .makePlayer = [](PlaybackModel&) { return std::make_unique<NoPlayer>(); }});
  if (const QString fault = model.errorMessage(); !fault.isEmpty()) return failed(fault);
  int announced = 0;
  QObject::connect(&model, &PlaybackModel::elapsedChanged, &model, [&announced] { ++announced; });
  double best = 0;
  for (int round = 0; round < 3; ++round) {
    best = std::max(best, drainedPerSecond(model.engine(), kEvents));
  }
  if (announced == 0) return failed(QStringLiteral("no event reached the model"));
  std::printf("drainEvents: %.0f property events/s (%d position changes shown)\n", best, announced);
  return 0;
}

}  // namespace

}  // namespace tromelo

int main(int argc, char** argv) { return tromelo::run(argc, argv); }
