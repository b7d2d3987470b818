#include "overlay/SliderTravel.h"

#include <algorithm>

namespace tromelo {

namespace {

constexpr double kInset = 8;  // how far the knob stays away from both ends, in points

double travel(double width) { return std::max(width - 2 * kInset, 1.0); }

}  // namespace

double SliderTravel::place(double value, double width) {
  return kInset + travel(width) * std::clamp(value, 0.0, 1.0);
}

double SliderTravel::valueAt(double place, double width) {
  return std::clamp((place - kInset) / travel(width), 0.0, 1.0);
}

QList<double> SliderTravel::marks(const QList<Chapter>& chapters, double duration, double width) {
  QList<double> marks;
  if (!(duration > 0)) return marks;
  for (qsizetype i = 1; i < chapters.size(); ++i)
    marks.append(place(chapters[i].time / duration, width));
  return marks;
}

QList<double> SliderTravel::bookmarkMarks(const QList<FilmBookmark>& bookmarks, double duration,
                                          double width) {
  QList<double> marks;
  if (!(duration > 0)) return marks;
  for (const FilmBookmark& bookmark : bookmarks)
    marks.append(place(bookmark.position / duration, width));
  return marks;
}

QList<double> SliderTravel::loopMarks(const AbLoop& loop, double duration, double width) {
  QList<double> marks;
  if (!(duration > 0)) return marks;
  for (const std::optional<double>& mark : {loop.start, loop.end})
    if (mark) marks.append(place(*mark / duration, width));
  return marks;
}

}  // namespace tromelo
