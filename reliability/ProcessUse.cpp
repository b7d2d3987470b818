#include "ProcessUse.h"

#include <QDir>
#include <QFile>

namespace tromelo::testing {

namespace {

int entries(const QString& folder) {
  return int(QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

qint64 residentMemory(const QString& process) {
  QFile status(process + QStringLiteral("/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmRSS:")) return line.sliced(6).chopped(2).trimmed().toLongLong();
  return 0;
}

}  // namespace

ProcessUse ProcessUse::of(qint64 processId) {
  const QString process = QStringLiteral("/proc/%1").arg(processId);
  return {residentMemory(process), entries(process + QStringLiteral("/fd")),
          entries(process + QStringLiteral("/task"))};
}

}  // namespace tromelo::testing
