#include "adjustments/FilmAdjustments.h"

#include <gtest/gtest.h>

#include "adjustments/AdjustmentValue.h"
#include "platform/UserDefaults.h"
#include "support/Home.h"
#include "support/Table.h"

namespace tromelo::testing {

struct FilmAdjustmentsTest : ::testing::Test, protected Home {
  std::string now(Adjustment adjustment) const { return film_.value(adjustment); }

  FilmAdjustments film_{defaults_};
};

TEST_F(FilmAdjustmentsTest, StepsComeBackToWhereTheyBeganAndEndWhereTheyMust) {
  for (const auto& [adjustment, from, steps, to] : Table<Adjustment, const char*, int, const char*>{
           {Adjustment::zoom, "0.0", 3, "0.15"},
           {Adjustment::zoom, "0.15", -3, "0.0"},
           {Adjustment::zoom, "2.95", 5, "3.0"},
           {Adjustment::brightness, "nonsense", -1, "-5.0"},
           {Adjustment::aspect, "fill", 1, "made"},
           {Adjustment::aspect, "made", -1, "fill"},
           {Adjustment::nightMode, "off", 1, "on"},
       })
    EXPECT_EQ(steppedValue(adjustmentRow(adjustment), from, steps), to) << from << " " << steps;
}

TEST_F(FilmAdjustmentsTest, WhatWasStoredIsTakenToTheNearestThatMakesSense) {
  EXPECT_TRUE(
      film_.fileKnown({{"zoom", "0.25"}, {"of a later edition", "1"}, {"crop", "64x36+0+2"}}));
  EXPECT_EQ(now(Adjustment::crop), "64x36+0+2");
  for (const auto& [key, stored, kept] : Table<const char*, const char*, const char*>{
           {"zoom", "1e9", "3.0"},
           {"zoom", "nan", "0.0"},
           {"zoom", "1;quit", "0.0"},
           {"aspect", "7:1", "made"},
           {"crop", "1x1", ""},
           {"secondSubtitle", "../x", "no"},
       }) {
    film_.fileStarted();
    EXPECT_FALSE(film_.fileKnown({{key, stored}})) << stored;
    EXPECT_EQ(film_.value(adjustmentRow(std::string(key))->adjustment), kept) << stored;
  }
}

TEST_F(FilmAdjustmentsTest, AFilmKeepsItsOwnBesideWhatIsForAll) {
  film_.set(Adjustment::nightMode, "on");
  film_.set(Adjustment::brightness, "10.0");
  film_.set(Adjustment::rotation, "90");
  film_.useForAll(AdjustmentGroup::picture);
  EXPECT_EQ(film_.ofFilm(), (AdjustmentValues{{"nightMode", "on"}, {"rotation", "90"}}));
  film_.fileStarted();
  EXPECT_EQ(now(Adjustment::brightness), "10.0");
  EXPECT_EQ(now(Adjustment::rotation), "0") << "which makes no sense for all";
  film_.makeAsMade(AdjustmentGroup::picture);
  EXPECT_EQ(now(Adjustment::brightness), "0.0");
  EXPECT_EQ(film_.ofFilm(), (AdjustmentValues{{"brightness", "0.0"}})) << "and stays so";
  EXPECT_FALSE(film_.isChanged(AdjustmentGroup::picture));
  EXPECT_EQ(FilmAdjustments(defaults_).value(Adjustment::brightness), "10.0") << "after a restart";
  film_.useForAll(AdjustmentGroup::picture);
  EXPECT_EQ(FilmAdjustments(defaults_).value(Adjustment::brightness), "0.0");
}

TEST_F(FilmAdjustmentsTest, TheEngineIsToldWhatDiffersAndNoMore) {
  EXPECT_TRUE(engineWrites(AdjustmentValues(), AdjustmentValues()).empty());
  const auto writes = engineWrites({{"brightness", "10.0"}, {"gamma", "5.0"}},
                                   {{"brightness", "0.0"}, {"zoom", "99"}});
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_EQ(writes[0].name + writes[0].value, "video-zoom3.0") << "a stored value is kept in range";
  EXPECT_EQ(writes[1].name + writes[1].value, "gamma5.0");
}

}  // namespace tromelo::testing
