#include "adjustments/SmoothMotion.h"

#include <gtest/gtest.h>

#include "support/Table.h"

namespace tromelo::testing {

TEST(SmoothMotionTest, PicksByTheRatesAndSaysWhatItPicked) {
  for (const auto& [film, screen, varies, text] : Table<double, double, bool, const char*>{
           {24000.0 / 1001, 60, false, "23.976 at 60 Hz, interpolated"},
           {25, 50, false, "25 at 50 Hz, in step"},
           {24000.0 / 1001, 119.88, false, "23.976 at 119.88 Hz, in step"},
           {24, 59.94, false, "24 at 59.94 Hz, interpolated"},
           {60, 50, false, "60 at 50 Hz, interpolated"},
           {24, 144, true, "24, the screen follows"},
           {0, 60, false, ""},
           {25, 0, false, ""},
       })
    EXPECT_EQ(motionText(smoothMotion(film, screen, varies)), text);
}

}  // namespace tromelo::testing
