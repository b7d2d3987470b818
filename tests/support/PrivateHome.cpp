#include "support/PrivateHome.h"

#include <QDir>

namespace tromelo::testing {

PrivateHome::PrivateHome() {
  for (const char* variable :
       {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
    const QString path = directory_.filePath(variable);
    QDir().mkpath(path);
    qputenv(variable, path.toLocal8Bit());
  }
}

}  // namespace tromelo::testing
