#include "overlay/SliderTravel.h"

#include <algorithm>

namespace tromelo {

namespace {

double travel(double width) { return std::max(width - 2 * kSliderInset, 1.0); }

}  // namespace

double sliderPlace(double value, double width) {
  return kSliderInset + travel(width) * std::clamp(value, 0.0, 1.0);
}

double sliderValueAt(double place, double width) {
  return std::clamp((place - kSliderInset) / travel(width), 0.0, 1.0);
}

}  // namespace tromelo
