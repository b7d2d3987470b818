#include "player/PlayerFormats.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tromelo {
namespace {

struct FormatRow {
  double value;
  const char* text;
};

void expectTexts(QString (*format)(double), std::initializer_list<FormatRow> rows) {
  for (const FormatRow& row : rows)
    EXPECT_EQ(format(row.value), QString::fromUtf8(row.text)) << row.value;
}

TEST(PlayerFormatsTest, Clocks) {
  expectTexts(formatClock, {{0, "0:00"},
                            {-0.0, "0:00"},
                            {59.9, "0:59"},
                            {61, "1:01"},
                            {3599, "59:59"},
                            {3600, "1:00:00"},
                            {3661.7, "1:01:01"},
                            {36000, "10:00:00"},
                            {3600000, "1000:00:00"},
                            {-5, "0:00"},
                            {1e300, "0:00"},
                            {NAN, "0:00"},
                            {std::numeric_limits<double>::infinity(), "0:00"}});
}

TEST(PlayerFormatsTest, Speeds) {
  expectTexts(formatSpeed, {{1, "1×"},
                            {0.25, "0.25×"},
                            {1.5, "1.5×"},
                            {2, "2×"},
                            {10, "10×"},
                            {0.001, "0×"},
                            {1.0004, "1×"}});
}

TEST(PlayerFormatsTest, Delays) {
  expectTexts(formatDelay, {{0, "0 ms"},
                            {0.0004, "0 ms"},
                            {0.0005, "+1 ms"},
                            {-0.0005, "-1 ms"},
                            {0.05, "+50 ms"},
                            {-0.25, "-250 ms"},
                            {-0.1, "-100 ms"}});
}

}  // namespace
}  // namespace tromelo
