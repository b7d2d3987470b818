#include "support/BusDaemon.h"

namespace tromelo::testing {

BusDaemon::BusDaemon() {
  process_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  process_.waitForReadyRead();
  address_ = QString::fromUtf8(process_.readLine()).trimmed();
}

BusDaemon::~BusDaemon() {
  process_.terminate();
  process_.waitForFinished();
}

}  // namespace tromelo::testing
