#pragma once

#include <optional>

#include "playback/FileChooser.h"

namespace tromelo::testing {

/// A person who looks at the dialog for as long as a test wants.
struct FakeChooser final : FileChooser {
  void chooseFiles(const Request& request, Callback chosen) override {
    asked = request;
    answer = std::move(chosen);
  }
  void chooseNewFile(const Request& request, const QString&, Callback chosen) override {
    chooseFiles(request, std::move(chosen));
  }

  std::optional<Request> asked;
  Callback answer;
};

}  // namespace tromelo::testing
