#pragma once

#include <gtest/gtest.h>

#include "EngineProbe.h"
#include "RunningPlayer.h"
#include "Screen.h"
#include "support/Clips.h"

namespace tromelo::testing {

struct EndToEnd : ::testing::Test {
  static QString clip(const QString& name) {
    return QString::fromStdString(clipPath(name.toStdString()));
  }

  EngineProbe probe() { return EngineProbe(player.ipcPath()); }

  /// The visible window whose title holds this, by its id; where the host has none, by its title.
  QString window(const QString& title) { return screen::windowOf(player.processId(), title); }

  /// Whether that window has the keyboard.
  bool isActive(const QString& title) { return screen::isActive(player.processId(), title); }

  RunningPlayer player;
};

/// The picture that the clips made from ffmpeg's test source have: strong colours side by side.
inline bool showsTestPicture(const QImage& image) {
  int strong = 0;
  for (int y = 0; y < image.height(); y += 8)
    for (int x = 0; x < image.width(); x += 8) {
      const QColor colour = image.pixelColor(x, y);
      strong += colour.hsvSaturation() > 200 && colour.value() > 200;
    }
  return strong * 64 * 20 > image.width() * image.height() / 20;
}

}  // namespace tromelo::testing
