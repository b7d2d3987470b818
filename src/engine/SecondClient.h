#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

struct mpv_event;
struct mpv_handle;

namespace tromelo {

struct MpvClientApi;

/// Another client of the engine, with a thread on which it may wait for it.
class SecondClient {
 public:
  /// Has no handle, and never runs, where the engine has no room for another client. `name` is a
  /// literal.
  SecondClient(std::shared_ptr<const MpvClientApi> api, mpv_handle* engine, const char* name);
  /// Before the engine is destroyed, which would wait for it. Waits for the thread. Any thread.
  ~SecondClient();
  SecondClient(const SecondClient&) = delete;
  SecondClient& operator=(const SecondClient&) = delete;

  mpv_handle* handle() const { return handle_; }

  /// Calls the first on the thread, and then the other with each event and after each wake().
  void start(std::function<void()> begin, std::function<void(const mpv_event&)> handle);
  /// Any thread.
  void wake() const;

 private:
  const std::shared_ptr<const MpvClientApi> api_;
  const char* const name_;  // also the thread's
  mpv_handle* const handle_;
  std::atomic<bool> ends_ = false;
  std::thread thread_;
};

}  // namespace tromelo
