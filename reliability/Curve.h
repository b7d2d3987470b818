#pragma once

#include <QString>
#include <vector>

#include "MainThreadGaps.h"
#include "ProcessUse.h"

namespace tromelo::testing {

/// What the program was like at a moment.
struct Sample {
  double minute = 0;  // since the beginning
  ProcessUse use;
  MainThreadGaps::Gap gap;  // the longest since the sample before
};

/// Writes a picture of how the program went on, as SVG: a strip for each of memory, descriptors,
/// threads, and gaps of the main thread.
void drawCurves(const std::vector<Sample>& samples, const QString& path);

}  // namespace tromelo::testing
