#pragma once

#include "playback/FileChooser.h"

namespace tromelo::testing {

/// For tests in which nobody chooses files.
struct NoFileChooser : FileChooser {
  void chooseFiles(const Request&, Callback) override {}
};

}  // namespace tromelo::testing
