#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

namespace tromelo {

/// SIGINT and SIGTERM as a signal of the event loop. A second one, whichever it is, ends the
/// program at once. One instance.
class TerminationSignals : public QObject {
  Q_OBJECT

 public:
  TerminationSignals();
  ~TerminationSignals() override;

 Q_SIGNALS:
  void received();

 private:
  void read();

  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tromelo
