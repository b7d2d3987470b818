#include "platform/SessionBus.h"

#include <QFile>

namespace tromelo {

namespace {

bool mayExist() {
  if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && QFile::exists(runtime + QStringLiteral("/bus"));
}

}  // namespace

std::optional<QDBusConnection> sessionBus() {
  // Asked without an address, libdbus would look for a bus through the X server, or start one.
  if (!mayExist()) return std::nullopt;
  QDBusConnection bus = QDBusConnection::sessionBus();
  return bus.isConnected() ? std::optional(bus) : std::nullopt;
}

}  // namespace tromelo
