#pragma once

#include <QTemporaryDir>

#include "platform/UserDefaults.h"

namespace tromelo::testing {

/// A folder of the test's own, and what is remembered in it.
struct Home {
  QTemporaryDir directory_;
  QString path_ = directory_.filePath("defaults.json");
  UserDefaults defaults_{path_};
};

}  // namespace tromelo::testing
