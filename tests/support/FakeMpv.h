#pragma once

#include <atomic>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "engine/MpvClientApi.h"

namespace tromelo::testing {

/// A libmpv that plays nothing: it does as a test says and remembers what it was told. Outlives
/// the engines that use it. terminateDestroy may come on another thread, as may wake().
class FakeMpv {
 public:
  MpvClientApi api();

  // What it answers.
  bool cannotBeCreated = false;
  unsigned long version = 0x20005;
  std::map<std::string, int> optionResults;  // 0 for the others
  int initializeResult = 0;
  std::size_t room = 1000;  // requests that it takes before it says that its queue is full
  int refusal = 0;          // what it says to every request, if that is an error

  // What it was told, in order.
  std::vector<std::pair<std::string, std::string>> options;
  struct Observed {
    std::uint64_t reply;
    std::string name;
    mpv_format format;
    friend bool operator==(const Observed&, const Observed&) = default;
  };
  std::vector<Observed> observed;
  /// Commands as they came; property writes as {"set", name, value}, reads
  /// as {"get", name, reply}.
  std::vector<std::vector<std::string>> requests;
  std::string logLevel;
  int created = 0;
  std::atomic<int> destroyed = 0;
  std::atomic<std::thread::id> destroyedBy;  // the last time

  /// Waits to be taken by the engine. `data` must live until then.
  void queue(mpv_event_id id, void* data = nullptr, std::uint64_t reply = 0, int error = 0);
  std::size_t queuedEvents() const { return events_.size(); }
  /// Calls the engine's wakeup callback, if one is installed.
  void wake();

 private:
  int request(std::vector<std::string> words);

  std::deque<mpv_event> events_;
  mpv_event taken_{};
  std::mutex callbackMutex_;
  void (*callback_)(void*) = nullptr;
  void* context_ = nullptr;
};

}  // namespace tromelo::testing
