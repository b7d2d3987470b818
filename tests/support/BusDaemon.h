#pragma once

#include <QDBusConnection>
#include <QProcess>

namespace tromelo::testing {

/// A session bus of the test's own, for as long as this lives.
struct BusDaemon {
  BusDaemon() {
    process_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    process_.waitForReadyRead();
    address_ = QString::fromUtf8(process_.readLine()).trimmed();
  }
  ~BusDaemon() {
    for (const QString& name : names_) QDBusConnection::disconnectFromBus(name);
    process_.terminate();
    process_.waitForFinished();
  }

  /// For as long as this lives; `name` is nobody else's.
  QDBusConnection connect(const QString& name) {
    names_ << name;
    return QDBusConnection::connectToBus(address_, name);
  }
  /// Empty when the daemon did not start.
  const QString& address() const { return address_; }

 private:
  QProcess process_;
  QString address_;
  QStringList names_;
};

}  // namespace tromelo::testing
