#pragma once

#include "playback/FileChooser.h"
#include "playback/PlayerPresenting.h"

namespace tromelo {

// What the model needs around it where nobody watches.

class NoPlayer final : public PlayerPresenting {
 public:
  void setAwaitingVideo(bool) override {}
  void setVideoReady(bool) override {}
  bool hasWindow() const override { return false; }
  void reveal() override {}
  void close() override {}
  void showLibrary() override {}
  void showToast(const QString&) override {}
};

class NoChooser final : public FileChooser {
 public:
  void chooseFiles(const Request&, Callback) override {}
};

}  // namespace tromelo
