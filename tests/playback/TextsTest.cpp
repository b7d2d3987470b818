#include <gtest/gtest.h>

#include "playback/FileOptions.h"
#include "playback/SpeedLadder.h"

namespace tromelo {

TEST(FileOptions, HoldTheStartAndTheDecoder) {
  EXPECT_EQ(fileOptions({}, false), "");
  EXPECT_EQ(fileOptions(12.5, false), "start=12.5");
  EXPECT_EQ(fileOptions({}, true), "hwdec=no");
  EXPECT_EQ(fileOptions(90, true), "start=90.0,hwdec=no");
}

TEST(SpeedLadder, ClimbsByRungsAndStaysOn) {
  const struct {
    double speed;
    int steps;
    double expected;
  } rows[] = {{1.0, 1, 1.25},  {1.0, -1, 0.75}, {1.1, 1, 1.5},   {1.0005, 1, 1.25},
              {2.0, 1, 3.0},   {3.0, 1, 3.0},   {3.0, -1, 2.0},  {0.25, -1, 0.25},
              {0.1, -1, 0.25}, {8.0, -1, 2.0},  {1.0, 100, 3.0}, {1.0, -2147483647 - 1, 0.25}};
  for (const auto& row : rows) {
    EXPECT_EQ(steppedSpeed(row.speed, row.steps), row.expected) << row.speed << " " << row.steps;
  }
}

}  // namespace tromelo
