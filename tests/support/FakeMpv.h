#pragma once

#include <atomic>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

#include "engine/MpvClientApi.h"

namespace tromelo::testing {

/// A libmpv that plays nothing: it does as a test says and remembers what it was told. Outlives
/// the engines that use it. terminateDestroy may come on another thread, as may wake() and events
/// be taken.
struct FakeMpv {
  MpvClientApi api() {
    return {
        .create = [this]() -> mpv_handle* {
          if (cannotBeCreated) return nullptr;
          ++created;
          return reinterpret_cast<mpv_handle*>(this);
        },
        .setOptionString =
            [this](mpv_handle*, const char* name, const char* value) {
              options.emplace_back(name, value);
              const auto result = optionResults.find(name);
              return result == optionResults.end() ? 0 : result->second;
            },
        .initialize = [this](mpv_handle*) { return initializeResult; },
        .observeProperty =
            [this](mpv_handle*, std::uint64_t reply, const char* name, mpv_format format) {
              observed.emplace_back(reply, name, format);
              return 0;
            },
        .requestLogMessages =
            [this](mpv_handle*, const char* level) {
              logLevel = level;
              return 0;
            },
        .setWakeupCallback =
            [this](mpv_handle*, void (*callback)(void*), void* context) {
              const std::scoped_lock lock(callbackMutex_);
              callback_ = callback;
              context_ = context;
            },
        .waitEvent =
            [this](mpv_handle*, double) {
              const std::scoped_lock lock(eventsMutex_);
              taken_ = {};
              if (!events_.empty()) {
                taken_ = events_.front();
                events_.pop_front();
              }
              return &taken_;
            },
        .commandAsync =
            [this](mpv_handle*, std::uint64_t, const char** arguments) {
              std::vector<std::string> words;
              for (; *arguments; ++arguments) words.emplace_back(*arguments);
              return request(std::move(words), MPV_EVENT_COMMAND_REPLY);
            },
        .setPropertyAsync =
            [this](mpv_handle*, std::uint64_t, const char* name, mpv_format, void* data) {
              return request({"set", name, *static_cast<const char**>(data)},
                             MPV_EVENT_SET_PROPERTY_REPLY);
            },
        .getPropertyAsync =
            [this](mpv_handle*, std::uint64_t reply, const char* name, mpv_format) {
              return request({"get", name, std::to_string(reply)});
            },
        .clientApiVersion = [this] { return version; },
        .errorString = [](int code) -> const char* {
          return code < -100 ? nullptr : mpv_error_string(code);
        },
        .terminateDestroy =
            [this](mpv_handle*) {
              destroyedBy = std::this_thread::get_id();
              ++destroyed;
            },
        .createClient = [](mpv_handle*, const char*) -> mpv_handle* { return nullptr; },
    };
  }

  // What it answers.
  bool cannotBeCreated = false;
  unsigned long version = 0x20005;
  std::map<std::string, int> optionResults;  // 0 for the others
  int initializeResult = 0;
  std::size_t room = 1000;  // requests that it takes before it says that its queue is full
  int refusal = 0;          // what it says to every request, if that is an error
  bool hangs = false;       // it takes requests, and does nothing of it

  // What it was told, in order.
  std::vector<std::pair<std::string, std::string>> options;
  std::vector<std::tuple<std::uint64_t, std::string, mpv_format>> observed;
  /// Commands as they came; property writes as {"set", name, value}, reads
  /// as {"get", name, reply}.
  std::vector<std::vector<std::string>> requests;
  std::string logLevel;
  int created = 0;
  std::atomic<int> destroyed = 0;
  std::atomic<std::thread::id> destroyedBy;  // the last time

  /// Waits to be taken by the engine. `data` must live until then.
  void queue(mpv_event_id id, void* data = nullptr, std::uint64_t reply = 0, int error = 0) {
    const std::scoped_lock lock(eventsMutex_);
    events_.push_back({id, error, reply, data});
  }
  std::size_t queuedEvents() const { return events_.size(); }
  /// Calls the engine's wakeup callback, if one is installed.
  void wake() {
    const std::scoped_lock lock(callbackMutex_);
    if (callback_) callback_(context_);
  }

 private:
  /// Where it says that it is done with one, it says so to nobody who waits for the outcome.
  int request(std::vector<std::string> words, mpv_event_id done = MPV_EVENT_NONE) {
    if (refusal < 0) return refusal;
    if (room == 0) return MPV_ERROR_EVENT_QUEUE_FULL;
    --room;
    requests.push_back(std::move(words));
    if (done != MPV_EVENT_NONE && !hangs) queue(done);
    return 0;
  }

  std::mutex eventsMutex_;
  std::deque<mpv_event> events_;
  mpv_event taken_{};
  std::mutex callbackMutex_;
  void (*callback_)(void*) = nullptr;
  void* context_ = nullptr;
};

}  // namespace tromelo::testing
