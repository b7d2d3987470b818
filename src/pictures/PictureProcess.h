#pragma once

#include <QByteArray>
#include <functional>
#include <memory>
#include <utility>

#include "pictures/PictureMessage.h"
#include "platform/Clock.h"
#include "platform/HelperProcess.h"

namespace tromelo {

/// The process that makes pictures, as its client sees it: started with the first request, ended
/// when nothing has been asked for a while, and when an answer takes too long or isn't one. Main
/// thread only; nothing here waits.
class PictureProcess {
 public:
  using Program = HelperProcess::Program;
  static constexpr std::chrono::seconds kPatience{10};  // with an answer
  static constexpr std::chrono::seconds kRest{20};      // until it is ended

  struct Outcome {
    bool hasFailed = false;  // the process, which is gone
    QImage picture = {};     // null: there is none of this film or moment
  };
  using Answer = std::function<void(const Outcome&)>;

  /// `clock` outlives it.
  PictureProcess(Program program, Clock& clock) : program_(std::move(program)), clock_(clock) {}

  /// One request at a time. `answer` comes from the event loop, and may ask for the next.
  void ask(const PictureRequest& request, Answer answer);

  /// Ends it, whatever it is doing, without an answer.
  void end();
  bool isRunning() const { return process_.isRunning(); }

 private:
  void start();
  void read(const QByteArray& output);
  void finish(const Outcome& outcome);
  void fail();

  const Program program_;
  Clock& clock_;
  HelperProcess process_;
  std::unique_ptr<Clock::Timer> limit_;
  PictureRequest request_;
  Answer answer_;
  QByteArray received_;
};

}  // namespace tromelo
