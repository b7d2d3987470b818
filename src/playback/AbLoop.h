#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>
#include <optional>
#include <string>

namespace tromelo {

/// The part of a film that plays over and over, from one mark to the other; in seconds. With one
/// mark only, the film plays on.
class AbLoop {
  Q_GADGET

 public:
  std::optional<double> start = {};
  std::optional<double> end = {};

  bool isWhole() const { return start && end; }
  /// Puts the next mark at `now`: the first, the second, which may also lie before the first and
  /// never lies upon it, or none any more.
  AbLoop marked(double now) const;

  friend bool operator==(const AbLoop&, const AbLoop&) = default;
};

/// A mark as the engine writes it: "no" or seconds. What isn't a time is no mark.
std::optional<double> loopMark(const std::string& text);
std::string loopMarkText(std::optional<double> mark);

}  // namespace tromelo
