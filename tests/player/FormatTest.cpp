#include "player/Format.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/Table.h"

namespace tromelo::testing {

TEST(FormatTest, TimesSpeedsAndDelays) {
  const Table<QString (*)(double), double, const char*> rows{
      {Format::clock, 59.9, "0:59"},      {Format::clock, 61, "1:01"},
      {Format::clock, 3599, "59:59"},     {Format::clock, 3661.7, "1:01:01"},
      {Format::clock, 36000, "10:00:00"}, {Format::clock, -5, "0:00"},
      {Format::clock, 1e300, "0:00"},     {Format::clock, NAN, "0:00"},
      {Format::speed, 0.25, "0.25×"},     {Format::speed, 1.5, "1.5×"},
      {Format::speed, 10, "10×"},         {Format::delay, 0.0004, "0 ms"},
      {Format::delay, 0.0005, "+1 ms"},   {Format::delay, -0.0005, "-1 ms"},
      {Format::delay, -0.25, "-250 ms"}};
  for (const auto& [format, value, text] : rows) EXPECT_EQ(format(value), text) << value;
}

}  // namespace tromelo::testing
