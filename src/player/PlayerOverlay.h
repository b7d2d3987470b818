#pragma once

#include <QList>
#include <QUrl>
#include <functional>

namespace tromelo {

/// The layer over the video that takes all input and holds the controls, as the player's rules see
/// it. Lengths are in points. Destroying it takes it off its window. Main thread only.
class PlayerOverlay {
 public:
  virtual ~PlayerOverlay() = default;

  /// The pointer came over the video or moved there with no button held.
  std::function<void()> onActivity = [] {};
  /// One click on the bare video that moved nothing; the first of two counts.
  std::function<void()> onClick = [] {};
  std::function<void()> onDoubleClick = [] {};
  /// The overlay or its controls have another place or size.
  std::function<void()> onLayout = [] {};
  /// Whole steps, never 0; up is positive.
  std::function<void(double)> onScroll = [](double) {};
  /// The same with Control held.
  std::function<void(double)> onControlScroll = [](double) {};
  /// Never an empty list; in the order that the drag had.
  std::function<void(const QList<QUrl>&)> onDropFiles = [](const QList<QUrl>&) {};

  /// The pointer is over a control that is shown.
  virtual bool isMouseInsideChrome() const = 0;
  virtual void setChromeVisible(bool visible, bool animated) = 0;
  virtual double height() const = 0;
  /// How far the control bar's top edge is above the overlay's bottom.
  virtual double controlsTop() const = 0;
};

}  // namespace tromelo
