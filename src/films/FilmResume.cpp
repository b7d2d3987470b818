#include "films/FilmResume.h"

#include <QCoreApplication>
#include <cmath>

namespace tromelo {

namespace {

constexpr double kShortest = 5 * 60;  // seconds, as is the next
constexpr double kEarliest = 30;
constexpr double kSeen = 0.95;  // of a film

constexpr int kMinutesOfAnHour = 60;

}  // namespace

std::optional<double> resumePosition(const FilmProgress& progress) {
  const auto [position, duration] = progress;
  // Written so that what isn't a number is no place to go on at.
  const bool isPlace =
      duration >= kShortest && position >= kEarliest && position < duration * kSeen;
  return isPlace ? std::optional(position) : std::nullopt;
}

QString leftText(const FilmProgress& progress) {
  const int minutes =
      static_cast<int>(std::ceil((progress.duration - progress.position) / kMinutesOfAnHour));
  const int hours = minutes / kMinutesOfAnHour;
  const int rest = minutes % kMinutesOfAnHour;
  if (hours == 0) return QCoreApplication::translate("FilmResume", "%1 min left").arg(minutes);
  if (rest == 0) return QCoreApplication::translate("FilmResume", "%1 h left").arg(hours);
  return QCoreApplication::translate("FilmResume", "%1 h %2 min left").arg(hours).arg(rest);
}

}  // namespace tromelo
