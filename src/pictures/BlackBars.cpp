#include "pictures/BlackBars.h"

#include <algorithm>
#include <cstdlib>

namespace tromelo {

namespace {

// What a codec makes of black stays below, of 255; and so much of a line may be brighter: dust,
// noise.
constexpr int kBlack = 28;
constexpr int kDust = 100;  // one in so many

constexpr int kNear = 2;  // pixels that edges may differ by
// Of ten scenes, those that have to fill what others fill.
constexpr int kMost = 6;
constexpr int kTen = 10;

bool isBright(QRgb pixel) { return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) > kBlack; }

/// How many bright pixels each line has, and each column.
struct Brightness {
  explicit Brightness(const QImage& picture) : lines(picture.height()), columns(picture.width()) {
    for (int y = 0; y < picture.height(); ++y) {
      const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
      for (int x = 0; x < picture.width(); ++x) {
        if (!isBright(line[x])) continue;
        ++lines[y];
        ++columns[x];
      }
    }
  }
  QList<int> lines;
  QList<int> columns;
};

/// From the first to the last that has more than dust.
std::pair<int, int> lit(const QList<int>& counts, int of) {
  const auto isLit = [of](int count) { return count > of / kDust; };
  const auto first = std::ranges::find_if(counts, isLit);
  const auto last = std::find_if(counts.rbegin(), counts.rend(), isLit);
  return {static_cast<int>(first - counts.begin()), static_cast<int>(counts.rend() - last - 1)};
}

bool areNear(const QRect& one, const QRect& other) {
  return std::abs(one.left() - other.left()) <= kNear &&
         std::abs(one.top() - other.top()) <= kNear &&
         std::abs(one.right() - other.right()) <= kNear &&
         std::abs(one.bottom() - other.bottom()) <= kNear;
}

/// Two scenes that agree on bars of their own weren't just dark at the edges.
bool haveBarsOfTheirOwn(const QList<QRect>& scenes, const QRect& all) {
  const auto isSmaller = [&](const QRect& scene) { return !areNear(scene, all); };
  return std::ranges::any_of(scenes, [&](const QRect& one) {
    return isSmaller(one) && std::abs(one.center().y() - all.center().y()) <= kNear &&
           std::ranges::count_if(scenes, [&](const QRect& other) { return areNear(one, other); }) >
               1;
  });
}

}  // namespace

QRect withoutBars(const QImage& picture) {
  if (picture.isNull()) return {};
  const QImage image = picture.convertToFormat(QImage::Format_RGB32);
  const Brightness bright(image);
  const auto [top, bottom] = lit(bright.lines, image.width());
  const auto [left, right] = lit(bright.columns, image.height());
  return {QPoint(left, top), QPoint(right, bottom)};
}

std::variant<QRect, NoBars> withoutBars(const QList<QRect>& scenes, const QRect& whole) {
  QList<QRect> seen;
  QRect all;
  for (const QRect& scene : scenes) {
    if (!scene.isValid()) continue;
    seen.append(scene);
    all |= scene;
  }
  constexpr qsizetype kFewest = 2;
  if (seen.size() < kFewest) return NoBars::tooDark;
  const auto filled =
      std::ranges::count_if(seen, [&](const QRect& scene) { return areNear(scene, all); });
  if (areNear(all, whole) && filled == seen.size()) return NoBars::none;
  if (haveBarsOfTheirOwn(seen, all)) return NoBars::vary;
  if (areNear(all, whole)) return NoBars::none;
  if (filled * kTen < seen.size() * kMost) return NoBars::tooDark;
  return all;
}

}  // namespace tromelo
