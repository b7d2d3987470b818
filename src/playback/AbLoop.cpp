#include "playback/AbLoop.h"

#include <algorithm>
#include <cmath>

#include "platform/NumberText.h"

namespace tromelo {

namespace {

constexpr double kShortest = 0.1;  // seconds

}  // namespace

AbLoop AbLoop::marked(double now) const {
  if (isWhole()) return {};
  if (!start) return {.start = now};
  const auto [first, last] = std::minmax(*start, now);
  return {.start = first, .end = std::max(last, first + kShortest)};
}

std::optional<double> loopMark(const std::string& text) {
  bool isNumber = false;
  const double seconds = QByteArray::fromStdString(text).toDouble(&isNumber);
  return isNumber && std::isfinite(seconds) ? std::optional(seconds) : std::nullopt;
}

std::string loopMarkText(std::optional<double> mark) { return mark ? numberText(*mark) : "no"; }

}  // namespace tromelo
