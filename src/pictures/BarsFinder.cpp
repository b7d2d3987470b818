#include "pictures/BarsFinder.h"

#include <algorithm>
#include <cmath>

namespace tromelo {

namespace {

constexpr int kScenes = 9;
/// More would take long, and memory.
constexpr int kTallest = 2160;

QRect scaled(const QRect& part, QSize from, QSize to) {
  const double across = double(to.width()) / from.width();
  const double down = double(to.height()) / from.height();
  // Rounded inwards, since a line of black is seen and a line of the picture isn't missed.
  const int left = static_cast<int>(std::ceil(part.left() * across));
  const int top = static_cast<int>(std::ceil(part.top() * down));
  const int right = static_cast<int>(std::floor((part.right() + 1) * across));
  const int bottom = static_cast<int>(std::floor((part.bottom() + 1) * down));
  return {left, top, right - left, bottom - top};
}

}  // namespace

void BarsFinder::find(const std::string& path, QSize size, double duration, Answer answer) {
  process_.end();
  size_ = size;
  duration_ = duration;
  scenes_.clear();
  answer_ = std::move(answer);
  // Pixels that aren't square make it wider, and never taller.
  const int height = std::min(size.height(), kTallest);
  request_ = {.number = 0, .seconds = 0, .room = {size.width() * 4, height}, .path = path};
  look();
}

void BarsFinder::look() {
  ++request_.number;
  request_.seconds = duration_ * double(scenes_.size() + 1) / (kScenes + 1);
  process_.ask(request_, [this](const PictureProcess::Outcome& outcome) { take(outcome); });
}

void BarsFinder::take(const PictureProcess::Outcome& outcome) {
  if (outcome.picture.isNull()) {
    if (scenes_.isEmpty() || outcome.hasFailed) return answer_(NoBars::failed);
  } else {
    seen_ = outcome.picture.size();
  }
  scenes_.append(withoutBars(outcome.picture));
  if (scenes_.size() < kScenes) return look();
  process_.end();
  const auto found = withoutBars(scenes_, QRect(QPoint(), seen_));
  const auto* part = std::get_if<QRect>(&found);
  answer_(part ? std::variant<QRect, NoBars>(scaled(*part, seen_, size_)) : found);
}

}  // namespace tromelo
