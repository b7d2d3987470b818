#pragma once

#include <QDir>
#include <QTemporaryDir>

namespace tromelo::testing {

/// Turns every XDG base directory of the process but the runtime one to an empty temporary
/// directory, so that no test reads or writes what belongs to the person who runs it.
struct PrivateHome {
  PrivateHome() {
    for (const char* variable :
         {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
      const QString path = directory_.filePath(variable);
      QDir().mkpath(path);
      qputenv(variable, path.toLocal8Bit());
    }
  }

 private:
  QTemporaryDir directory_;
};

}  // namespace tromelo::testing
