#pragma once

#include <QObject>

namespace tromelo {
Q_NAMESPACE

/// The player's side panels.
enum class PlayerPanel {
  tracks,  // audio and subtitle tracks, with the subtitle style
  chapters,
  queue,
  shortcuts,
};
Q_ENUM_NS(PlayerPanel)

}  // namespace tromelo
