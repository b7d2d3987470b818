#pragma once

#include <QString>

namespace tromelo {

/// Directories of the person who runs the program, after the XDG base directories. They may not
/// exist yet.

QString userConfigDirectory();       // $XDG_CONFIG_HOME
QString userDataDirectory();         // $XDG_DATA_HOME
QString diagnosticsDirectoryPath();  // $XDG_STATE_HOME/Tromelo

}  // namespace tromelo
