#pragma once

#include <functional>
#include <memory>

#include "lines/LineMessage.h"
#include "platform/Clock.h"
#include "platform/HelperProcess.h"

namespace tromelo {

/// The process that reads lines, as its client sees it: one for each request, ended when it tells
/// nothing for too long, or nonsense. Main thread only; nothing here waits.
class LineProcess {
 public:
  static constexpr std::chrono::seconds kPatience{30};  // from one piece of news to the next

  /// Called from the event loop, again and again. None: it has failed, and no more comes.
  using Ears = std::function<void(const std::optional<LineNews>&)>;

  /// `clock` outlives it. Without a program nothing can be read.
  LineProcess(HelperProcess::Program program, Clock& clock)
      : program_(std::move(program)), clock_(clock) {}

  /// In place of what is being read.
  void read(const LineRequest& request, Ears ears);
  /// No more is wanted.
  void end();

 private:
  void hear(const QByteArray& output);
  void wait();
  void tell(const std::optional<LineNews>& news);

  const HelperProcess::Program program_;
  Clock& clock_;
  HelperProcess process_;
  std::unique_ptr<Clock::Timer> limit_;
  Ears ears_;
  QByteArray received_;
};

}  // namespace tromelo
