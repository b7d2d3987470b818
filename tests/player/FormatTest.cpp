#include "player/Format.h"

#include <gtest/gtest.h>

#include <cmath>

#include "player/TypedTime.h"
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

TEST(TypedTimeTest, IsReadAsPeopleWriteIt) {
  using Place = TypedTime::Place;
  const Table<const char*, std::optional<Place>> rows{{"1:02:03", Place{3723}},
                                                      {"62:03", Place{3723}},
                                                      {" 90 ", Place{90}},
                                                      {"90,5", Place{90.5}},
                                                      {"+30", Place{30, true}},
                                                      {"− 1:00", Place{-60, true}},
                                                      {"1h2m3s", Place{3723}},
                                                      {"+1H 3s", Place{3603, true}},
                                                      {"١:٠٢:٠٣", Place{3723}},
                                                      {"６２：０３", Place{3723}},
                                                      {"\u200e+\u200f30", Place{30, true}},
                                                      {"+", {}},
                                                      {"1:", {}},
                                                      {"1:60", {}},
                                                      {"1:60:00", {}},
                                                      {"1h60m", {}},
                                                      {"1:2:3:4", {}},
                                                      {"--1", {}},
                                                      {"1e3", {}},
                                                      {"nan", {}},
                                                      {"9999999999", {}},
                                                      {"3s1m", {}}};
  for (const auto& [typed, place] : rows)
    EXPECT_EQ(TypedTime::parse(QString(typed)), place) << typed;
}

TEST(TypedTimeTest, LeadsIntoTheFilm) {
  for (const auto& [typed, duration, second, hint] :
       Table<const char*, double, double, const char*>{
           {"90", 4000, 90, "Goes to 1:30"},
           {"+30", 4000, 130, "Goes to 2:10"},
           {"-1:00", 4000, 40, "Goes to 0:40"},
           {"-2:00", 4000, 0, "Goes to 0:00"},
           {"2:00:00", 4000, 3999, "The film ends at 1:06:40"},
           {"+5", 0.5, 0, "The film ends at 0:00"},
           {"2:00:00", 0, 7200, "Goes to 2:00:00"},
       }) {
    EXPECT_EQ(TypedTime::target(typed, 100, duration), second) << typed;
    EXPECT_EQ(TypedTime::hint(typed, 100, duration), hint);
  }
  EXPECT_TRUE(std::isnan(TypedTime::target("soon", 100, 4000)));
}

}  // namespace tromelo::testing
