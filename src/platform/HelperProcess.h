#pragma once

#include <QByteArray>
#include <QList>
#include <QPointer>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

namespace tromelo {

/// A process that works for this one and answers on its standard output: it is killed when nobody
/// wants that any more. Main thread only; nothing here waits.
class HelperProcess {
 public:
  struct Program {
    QString file;
    QStringList arguments;
  };
  /// Called from the event loop, and never after end().
  struct Ears {
    std::function<void(const QByteArray& output)> heard;
    /// It is gone, or couldn't be started.
    std::function<void()> ended;
  };

  HelperProcess() = default;
  ~HelperProcess();
  HelperProcess(const HelperProcess&) = delete;
  HelperProcess& operator=(const HelperProcess&) = delete;

  /// In place of what runs.
  void start(const Program& program, Ears ears);
  /// To its standard input.
  void write(const QByteArray& bytes);
  /// Whatever it is doing.
  void end();
  bool isRunning() const { return process_ != nullptr; }

 private:
  QProcess* process_ = nullptr;       // deletes itself once it has ended
  QList<QPointer<QProcess>> killed_;  // those that have yet to end
  std::shared_ptr<const Ears> ears_;  // for this process
};

}  // namespace tromelo
