#pragma once

#include <QString>
#include <cstdio>

#include "playback/FileChooser.h"
#include "playback/PlayerPresenting.h"

namespace tromelo {

/// Says on stderr why nothing could be measured; the exit status for that.
inline int failed(const QString& why) {
  std::fprintf(stderr, "nothing was measured: %s\n", qPrintable(why));
  return 1;
}

// What the model needs around it where nobody watches.

class NoPlayer final : public PlayerPresenting {
 public:
  void setAwaitingVideo(bool) override {}
  void setVideoReady(bool) override {}
  bool hasWindow() const override { return false; }
  void replaceWindow() override {}
  void reveal() override {}
  void close() override {}
  void showLibrary() override {}
  void showToast(const QString&) override {}
  void showKeptPicture(const QUrl&) override {}
};

class NoChooser final : public FileChooser {
 public:
  void chooseFiles(const Request&, Callback) override {}
  void chooseNewFile(const Request&, const QString&, Callback) override {}
};

}  // namespace tromelo
