#pragma once

#include <QStandardPaths>
#include <QString>

namespace tromelo {

/// Directories of the person who runs the program, after the XDG base directories. They may not
/// exist yet.

/// $XDG_CONFIG_HOME
inline QString userConfigDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

/// $XDG_DATA_HOME
inline QString userDataDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

/// The one that the desktop has for pictures.
inline QString userPicturesDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

/// $XDG_CACHE_HOME
inline QString userCacheDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
}

/// $XDG_STATE_HOME/Tromelo
inline QString diagnosticsDirectoryPath() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericStateLocation) +
         QStringLiteral("/Tromelo");
}

}  // namespace tromelo
