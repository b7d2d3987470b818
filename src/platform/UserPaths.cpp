#include "platform/UserPaths.h"

#include <QStandardPaths>

namespace tromelo {

QString userConfigDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QString userDataDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString diagnosticsDirectoryPath() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericStateLocation) +
         QStringLiteral("/Tromelo");
}

}  // namespace tromelo
