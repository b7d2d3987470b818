#include "overlay/SliderTravel.h"

#include <algorithm>

namespace tromelo {

namespace {

constexpr double kInset = 8;  // how far the knob stays away from both ends, in points

double travel(double width) { return std::max(width - 2 * kInset, 1.0); }

/// None in a film whose length isn't known.
QList<double> places(QList<double> seconds, double duration, double width) {
  if (!(duration > 0)) return {};
  for (double& second : seconds) second = SliderTravel::place(second / duration, width);
  return seconds;
}

}  // namespace

double SliderTravel::place(double value, double width) {
  return kInset + travel(width) * std::clamp(value, 0.0, 1.0);
}

double SliderTravel::valueAt(double place, double width) {
  return std::clamp((place - kInset) / travel(width), 0.0, 1.0);
}

QList<double> SliderTravel::marks(const QList<Chapter>& chapters, double duration, double width) {
  QList<double> seconds;
  for (const Chapter& chapter : chapters) seconds.append(chapter.time);
  return places(seconds.sliced(std::min<qsizetype>(seconds.size(), 1)), duration, width);
}

QList<double> SliderTravel::bookmarkMarks(const QList<FilmBookmark>& bookmarks, double duration,
                                          double width) {
  QList<double> seconds;
  for (const FilmBookmark& bookmark : bookmarks) seconds.append(bookmark.position);
  return places(seconds, duration, width);
}

QList<double> SliderTravel::loopMarks(const AbLoop& loop, double duration, double width) {
  QList<double> seconds;
  for (const std::optional<double>& mark : {loop.start, loop.end})
    if (mark) seconds.append(*mark);
  return places(seconds, duration, width);
}

}  // namespace tromelo
