#include "player/PlayerFormats.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/Table.h"

namespace tromelo::testing {

TEST(PlayerFormatsTest, TimesSpeedsAndDelays) {
  const Table<QString (*)(double), double, const char*> rows{
      {formatClock, 59.9, "0:59"},      {formatClock, 61, "1:01"},
      {formatClock, 3599, "59:59"},     {formatClock, 3661.7, "1:01:01"},
      {formatClock, 36000, "10:00:00"}, {formatClock, -5, "0:00"},
      {formatClock, 1e300, "0:00"},     {formatClock, NAN, "0:00"},
      {formatSpeed, 0.25, "0.25×"},     {formatSpeed, 1.5, "1.5×"},
      {formatSpeed, 10, "10×"},         {formatDelay, 0.0004, "0 ms"},
      {formatDelay, 0.0005, "+1 ms"},   {formatDelay, -0.0005, "-1 ms"},
      {formatDelay, -0.25, "-250 ms"}};
  for (const auto& [format, value, text] : rows) EXPECT_EQ(format(value), text) << value;
}

}  // namespace tromelo::testing
