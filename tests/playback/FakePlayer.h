#pragma once

#include <QStringList>
#include <utility>

#include "playback/PlayerPresenting.h"

namespace tromelo::testing {

/// Writes down what the model asks of the player window.
struct FakePlayer final : PlayerPresenting {
  struct Log {
    QStringList calls;
    bool hasWindow = false;

    QStringList take() { return std::exchange(calls, {}); }
  };

  explicit FakePlayer(Log& log) : log_(log) {}

  void setAwaitingVideo(bool awaiting) override {
    log_.calls << (awaiting ? "awaiting" : "not awaiting");
  }
  void setVideoReady(bool ready) override { log_.calls << (ready ? "ready" : "not ready"); }
  void replaceWindow() override { log_.calls << "replace"; }
  bool hasWindow() const override { return log_.hasWindow; }
  void reveal() override { log_.calls << "reveal"; }
  void close() override { log_.calls << "close"; }
  void showLibrary() override { log_.calls << "library"; }
  void showToast(const QString& text) override { log_.calls << "toast " + text; }
  void showKeptPicture(const QUrl&) override { log_.calls << "picture"; }

 private:
  Log& log_;
};

}  // namespace tromelo::testing
