#pragma once

#include <QString>

namespace tromelo {

/// The way of the engine's pictures to the screen, as far as it matters to who explains it.
struct PictureWay {
  /// Why the host doesn't show the engine's own buffers.
  enum class Obstacle { none, notWayland, asked, lacksProtocol, refused };

  Obstacle obstacle = Obstacle::none;
  QString protocol = {};      // that the host lacks
  bool managesColor = false;  // the engine can tell the host of HDR

  friend bool operator==(const PictureWay&, const PictureWay&) = default;
};

/// In English, for a report.
QString reportOf(const PictureWay& way);

}  // namespace tromelo
