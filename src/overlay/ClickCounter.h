#pragma once

#include <QPointF>
#include <chrono>
#include <optional>

namespace tromelo {

/// Counts presses that follow each other quickly in one place.
class ClickCounter {
 public:
  struct Limits {
    std::chrono::milliseconds interval;
    double distance;  // points, in each direction
  };

  /// How many presses there have been by now, this one included. `time` has any beginning.
  int press(std::chrono::milliseconds time, QPointF place, const Limits& limits);

 private:
  struct Press {
    std::chrono::milliseconds time;
    QPointF place;
  };
  std::optional<Press> last_;
  int count_ = 0;
};

}  // namespace tromelo
