#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "pictures/PictureMessage.h"
#include "platform/Clock.h"

namespace tromelo {

/// The process that makes pictures, as its client sees it: started with the first request, ended
/// when nothing has been asked for a while, and when an answer takes too long or isn't one. Main
/// thread only; nothing here waits.
class PictureProcess {
 public:
  struct Program {
    QString file;
    QStringList arguments;
  };
  static constexpr std::chrono::seconds kPatience{10};  // with an answer
  static constexpr std::chrono::seconds kRest{20};      // until it is ended

  struct Outcome {
    bool hasFailed = false;  // the process, which is gone
    QImage picture = {};     // null: there is none of this film or moment
  };
  using Answer = std::function<void(const Outcome&)>;

  /// `clock` outlives it.
  PictureProcess(Program program, Clock& clock);
  ~PictureProcess();
  PictureProcess(const PictureProcess&) = delete;
  PictureProcess& operator=(const PictureProcess&) = delete;

  /// One request at a time. `answer` comes from the event loop, and may ask for the next.
  void ask(const PictureRequest& request, Answer answer);

  /// Ends it, whatever it is doing, without an answer.
  void end();
  bool isRunning() const { return process_ != nullptr; }

 private:
  void start();
  void read();
  void finish(const Outcome& outcome);
  void fail();
  void dismiss();

  const Program program_;
  Clock& clock_;
  QProcess* process_ = nullptr;          // deletes itself once it has ended
  QList<QPointer<QProcess>> dismissed_;  // those that have yet to end
  std::shared_ptr<const bool> isHeard_;  // what this process tells
  std::unique_ptr<Clock::Timer> limit_;
  PictureRequest request_;
  Answer answer_;
  QByteArray received_;
};

}  // namespace tromelo
