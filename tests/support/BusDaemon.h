#pragma once

#include <QProcess>

namespace tromelo::testing {

/// A session bus of the test's own, for as long as this lives.
class BusDaemon {
 public:
  BusDaemon();
  ~BusDaemon();

  /// Empty when the daemon did not start.
  const QString& address() const { return address_; }

 private:
  QProcess process_;
  QString address_;
};

}  // namespace tromelo::testing
