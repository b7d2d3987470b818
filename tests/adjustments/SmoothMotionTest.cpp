#include "adjustments/SmoothMotion.h"

#include <gtest/gtest.h>

#include "support/Table.h"

namespace tromelo::testing {

TEST(SmoothMotionTest, PicksByTheRatesAndSaysWhatItPicked) {
  for (const auto& [film, screen, text] : Table<double, double, const char*>{
           {24000.0 / 1001, 60, "23.976 at 60 Hz, interpolated"},
           {25, 50, "25 at 50 Hz, in step"},
           {24000.0 / 1001, 119.88, "23.976 at 119.88 Hz, in step"},
           {24, 59.94, "24 at 59.94 Hz, interpolated"},
           {60, 50, "60 at 50 Hz, interpolated"},
           {0, 60, ""},
           {25, 0, ""},
       })
    EXPECT_EQ(motionText(smoothMotion(film, screen)), text);
}

}  // namespace tromelo::testing
