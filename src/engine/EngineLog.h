#pragma once

#include <atomic>
#include <chrono>
#include <fstream>
#include <memory>
#include <string>

#include "engine/SecondClient.h"

struct mpv_event_log_message;

namespace tromelo {

/// Writes the engine's log in its place. libmpv's own writer has room for a hundred lines; its
/// video output waits while there is none, and in libmpv 0.40 sometimes for ever.
class EngineLog {
 public:
  /// The file is the one that the engine was told to write to, a path's bytes; this goes on in it.
  EngineLog(std::shared_ptr<const MpvClientApi> api, mpv_handle* engine, const std::string& file);

  /// Any thread.
  void setWriting(bool writes);

 private:
  void takeOver();
  void askForLines();
  void write(const mpv_event_log_message& line);

  const std::shared_ptr<const MpvClientApi> api_;
  const std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
  std::ofstream file_;
  std::atomic<bool> writes_ = true;
  bool isAsked_ = false;  // for lines
  SecondClient client_;   // the last to be made
};

}  // namespace tromelo
