#pragma once

#include <QList>
#include <QUrl>
#include <functional>

namespace tromelo {

/// The layer over the video that takes all input, as the player's rules see it. Destroying it takes
/// it off its window. Main thread only.
class PlayerOverlay {
 public:
  virtual ~PlayerOverlay() = default;

  std::function<void()> onDoubleClick = [] {};
  /// Never an empty list; in the order that the drag had.
  std::function<void(const QList<QUrl>&)> onDropFiles = [](const QList<QUrl>&) {};
};

}  // namespace tromelo
