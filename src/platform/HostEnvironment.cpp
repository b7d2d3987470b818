#include "platform/HostEnvironment.h"

#include <QProcess>
#include <map>
#include <optional>

namespace tromelo {

namespace {

using HostValue = std::optional<QByteArray>;  // none: the host had no such variable

std::map<QByteArray, HostValue>& hostValues() {
  static std::map<QByteArray, HostValue> values;
  return values;
}

}  // namespace

void HostEnvironment::set(const char* name, const QByteArray& value) {
  // The value that is found the first time is the host's.
  hostValues().try_emplace(
      name, qEnvironmentVariableIsSet(name) ? HostValue(qgetenv(name)) : HostValue());
  qputenv(name, value);
}

void HostEnvironment::enterPrivateDisplay(const QByteArray& socketPath) {
  set("WAYLAND_DISPLAY", socketPath);
}

QProcessEnvironment HostEnvironment::processEnvironment() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const auto& [name, value] : hostValues()) {
    if (value)
      environment.insert(QString::fromLatin1(name), QString::fromLocal8Bit(*value));
    else
      environment.remove(QString::fromLatin1(name));
  }
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
