#include "platform/SessionBus.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <QFile>
#include <QList>
#include <algorithm>
#include <cerrno>
#include <cstddef>

#include "platform/HostEnvironment.h"
#include "platform/UniqueFd.h"

namespace tromelo {

namespace {

constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";
constexpr std::chrono::milliseconds kPatience(500);

/// Of a socket in the file system, or of an abstract one, which begins with a zero. Empty for what
/// is reached in another way.
QByteArray socketOf(const QByteArray& address) {
  const QByteArray first = address.split(';').value(0);
  const auto named = [&first](const char* scheme) {
    const QByteArray rest = first.mid(qstrlen(scheme)).split(',').value(0);
    return first.startsWith(scheme) ? QByteArray::fromPercentEncoding(rest) : QByteArray();
  };
  if (const QByteArray path = named("unix:path="); !path.isEmpty()) return path;
  if (const QByteArray name = named("unix:abstract="); !name.isEmpty())
    return QByteArray(1, 0) + name;
  return {};
}

/// None where there is nobody to connect with.
UniqueFd connectTo(const QByteArray& socketName, bool& isSilent) {
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  if (socketName.isEmpty() || std::size_t(socketName.size()) >= sizeof place.sun_path) return {};
  std::ranges::copy(socketName, place.sun_path);
  const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + socketName.size());
  UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (connect(socket.get(), reinterpret_cast<const sockaddr*>(&place), length) == 0) return socket;
  isSilent = errno == EAGAIN;  // too many wait for it already
  return {};
}

bool mayExist() {
  if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && QFile::exists(runtime + QStringLiteral("/bus"));
}

}  // namespace

bool isSilentBus(const QByteArray& address, std::chrono::milliseconds patience) {
  bool isSilent = false;
  const UniqueFd socket = connectTo(socketOf(address), isSilent);
  if (!socket) return isSilent;
  // What every conversation with a bus begins with: a zero, and who we are.
  const QByteArray hello = QByteArray(1, 0) + "AUTH\r\n";
  if (send(socket.get(), hello.constData(), hello.size(), MSG_NOSIGNAL) < 0) return false;
  pollfd answer{.fd = socket.get(), .events = POLLIN, .revents = 0};
  return poll(&answer, 1, static_cast<int>(patience.count())) == 0;
}

void leaveSilentSessionBus() {
  QByteArray address = qgetenv(kAddress);
  if (address.isEmpty()) address = "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus";
  if (isSilentBus(address, kPatience)) HostEnvironment::set(kAddress, "disabled:");
}

std::optional<QDBusConnection> sessionBus() {
  // Asked without an address, libdbus would look for a bus through the X server, or start one.
  if (!mayExist()) return std::nullopt;
  QDBusConnection bus = QDBusConnection::sessionBus();
  return bus.isConnected() ? std::optional(bus) : std::nullopt;
}

}  // namespace tromelo
