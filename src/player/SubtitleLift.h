#pragma once

namespace tromelo {

/// By how much subtitles have to rise to clear controls whose top edge is `controlsTop` points
/// above the bottom of a picture of `height` points (above 0): percent of the height, at most 45.
double subtitleLift(double controlsTop, double height);

/// Lifts nearer to each other than this look the same; percent.
inline constexpr double kSubtitleLiftStep = 0.25;

}  // namespace tromelo
