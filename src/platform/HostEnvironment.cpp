#include "platform/HostEnvironment.h"

#include <QProcess>
#include <optional>

namespace tromelo {

namespace {

constexpr const char* kWaylandDisplay = "WAYLAND_DISPLAY";

struct HostDisplay {
  bool entered = false;
  std::optional<QByteArray> waylandDisplay;
};

HostDisplay& hostDisplay() {
  static HostDisplay display;
  return display;
}

}  // namespace

void HostEnvironment::enterPrivateDisplay(const QByteArray& socketPath) {
  HostDisplay& host = hostDisplay();
  if (!host.entered) {
    host.entered = true;
    if (qEnvironmentVariableIsSet(kWaylandDisplay)) host.waylandDisplay = qgetenv(kWaylandDisplay);
  }
  qputenv(kWaylandDisplay, socketPath);
}

QProcessEnvironment HostEnvironment::processEnvironment() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  const HostDisplay& host = hostDisplay();
  if (!host.entered) return environment;
  const auto name = QString::fromLatin1(kWaylandDisplay);
  if (host.waylandDisplay)
    environment.insert(name, QString::fromLocal8Bit(*host.waylandDisplay));
  else
    environment.remove(name);
  return environment;
}

bool HostEnvironment::startDetached(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProgram(program);
  process.setArguments(arguments);
  process.setProcessEnvironment(processEnvironment());
  return process.startDetached();
}

}  // namespace tromelo
