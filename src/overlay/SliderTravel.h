#pragma once

namespace tromelo {

/// How far a slider's knob stays away from both ends, in points.
constexpr double kSliderInset = 8;

/// The middle of the knob of a slider `width` points wide, for a value between 0 and 1.
double sliderPlace(double value, double width);

/// The value, between 0 and 1, whose knob is at `place`.
double sliderValueAt(double place, double width);

}  // namespace tromelo
