#pragma once

#include <QProcess>

namespace tromelo::testing {

/// A session bus of the test's own, for as long as this lives.
class BusDaemon {
 public:
  BusDaemon() {
    process_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    process_.waitForReadyRead();
    address_ = QString::fromUtf8(process_.readLine()).trimmed();
  }
  ~BusDaemon() {
    process_.terminate();
    process_.waitForFinished();
  }

  /// Empty when the daemon did not start.
  const QString& address() const { return address_; }

 private:
  QProcess process_;
  QString address_;
};

}  // namespace tromelo::testing
