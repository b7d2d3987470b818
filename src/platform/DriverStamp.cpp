#include "platform/DriverStamp.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSysInfo>

namespace tromelo {

namespace {

/// Where libva and libvdpau look.
QStringList driverFolders() {
  QStringList folders = qEnvironmentVariable("LIBVA_DRIVERS_PATH").split(u':', Qt::SkipEmptyParts);
  for (const QString& root :
       {QStringLiteral("/usr/lib"), QStringLiteral("/usr/lib64"), QStringLiteral("/app/lib")}) {
    const QDir libraries(root);
    for (const QString& place : libraries.entryList({QStringLiteral("*-linux-gnu*")}, QDir::Dirs) +
                                    QStringList(QStringLiteral(".")))
      for (const char* kind : {"dri", "vdpau", "GL/lib/dri"})
        folders += libraries.filePath(place + u'/' + QLatin1StringView(kind));
  }
  return folders;
}

}  // namespace

QByteArray driverStamp() {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(QSysInfo::kernelVersion().toUtf8());
  if (QFile nvidia(QStringLiteral("/proc/driver/nvidia/version")); nvidia.open(QFile::ReadOnly))
    hash.addData(nvidia.readAll());
  for (const QString& folder : driverFolders())
    for (const QFileInfo& driver : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
      hash.addData(driver.fileName().toUtf8());
      hash.addData(QByteArray::number(driver.size()));
      hash.addData(QByteArray::number(driver.lastModified().toMSecsSinceEpoch()));
    }
  return hash.result().toHex();
}

}  // namespace tromelo
