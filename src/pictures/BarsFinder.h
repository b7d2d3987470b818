#pragma once

#include <QList>
#include <QRect>
#include <QSize>
#include <functional>
#include <string>
#include <variant>

#include "pictures/BlackBars.h"
#include "pictures/PictureProcess.h"

namespace tromelo {

/// Looks for black bars in several scenes of a film, in a process of its own: the playing goes on
/// as it was. Main thread only; nothing waits.
class BarsFinder {
 public:
  /// What is left without them, in the film's own pixels.
  using Answer = std::function<void(const std::variant<QRect, NoBars>& found)>;

  /// `clock` outlives it.
  BarsFinder(HelperProcess::Program maker, Clock& clock) : process_(std::move(maker), clock) {}

  /// `size` is the film's in pixels, as they are stored; `duration` in seconds. In place of what is
  /// under way, which is never answered.
  void find(const std::string& path, QSize size, double duration, Answer answer);
  void stop() { process_.end(); }

 private:
  void look();
  void take(const PictureProcess::Outcome& outcome);

  PictureProcess process_;
  PictureRequest request_;
  QSize size_;
  double duration_ = 0;
  QSize seen_;           // of the pictures
  QList<QRect> scenes_;  // that were looked at
  Answer answer_;
};

}  // namespace tromelo
