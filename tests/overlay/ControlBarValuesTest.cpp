#include "overlay/ControlBarValues.h"

#include <gtest/gtest.h>

#include "overlay/ControlBarRow.h"
#include "overlay/PopoverFrame.h"
#include "overlay/SliderTravel.h"
#include "playback/Chapter.h"
#include "playback/SpeedLadder.h"

namespace tromelo {
namespace {

TEST(ControlBarValuesTest, VolumeSymbols) {
  struct Row {
    double volume;
    bool isMuted;
    const char* symbol;
  };
  for (const Row& row :
       {Row{0, false, "speaker.slash.fill"}, Row{80, true, "speaker.slash.fill"},
        Row{0.1, false, "speaker.wave.1.fill"}, Row{33.9, false, "speaker.wave.1.fill"},
        Row{34, false, "speaker.wave.2.fill"}, Row{66.99, false, "speaker.wave.2.fill"},
        Row{67, false, "speaker.wave.3.fill"}})
    EXPECT_EQ(volumeSymbol(row.volume, row.isMuted), row.symbol) << row.volume;
}

TEST(ControlBarValuesTest, Texts) {
  EXPECT_EQ(remainingText(100, 38), "-1:02");
  EXPECT_EQ(remainingText(10, 12), "-0:00");
  EXPECT_EQ(rangeTag(DynamicRange::Kind::sdr), "");
  EXPECT_EQ(rangeTag(DynamicRange::Kind::hdr10), "HDR10");
  EXPECT_EQ(rangeTag(DynamicRange::Kind::hlg), "HLG");
  EXPECT_EQ(rangeTag(DynamicRange::Kind::dolbyVision), "DOLBY VISION");
  const QList<Chapter> chapters{{.id = 0, .title = "One", .time = 0},
                                {.id = 1, .title = "Two", .time = 5}};
  EXPECT_EQ(chapterTitle(chapters, 1), "Two");
  EXPECT_EQ(chapterTitle(chapters, 3), "");
  EXPECT_EQ(chapterTitle(chapters, -1), "");
}

TEST(ControlBarValuesTest, MarksOfChapters) {
  const auto at = [](QList<double> times) {
    QList<Chapter> chapters;
    for (const double time : times)
      chapters.append({.id = chapters.size(), .title = {}, .time = time});
    return chapters;
  };
  EXPECT_EQ(chapterMarks(at({0, 50}), 100, 216), QList<double>({108}));
  EXPECT_EQ(chapterMarks(at({0, 25, 130}), 100, 216), QList<double>({58, 208})) << "at the end";
  EXPECT_EQ(chapterMarks(at({0, 50}), 0, 216), QList<double>());
  EXPECT_EQ(chapterMarks(at({0}), 100, 216), QList<double>());
  EXPECT_EQ(chapterMarks(at({0, 100}), 100, 3), QList<double>({9})) << "no room";
}

TEST(ControlBarValuesTest, AKnobIsWhereThePointerPutIt) {
  for (const double place : {8.0, 9.0, 100.0, 191.0, 192.0})
    EXPECT_DOUBLE_EQ(sliderPlace(sliderValueAt(place, 200), 200), place);
  EXPECT_EQ(sliderValueAt(-50, 200), 0);
  EXPECT_EQ(sliderValueAt(500, 200), 1);
  EXPECT_EQ(sliderPlace(7, 200), 192);
}

TEST(ControlBarValuesTest, SpeedsThatAreOne) {
  EXPECT_TRUE(isSameSpeed(1.0004, 1));
  EXPECT_FALSE(isSameSpeed(1.002, 1));
}

TEST(ControlBarValuesTest, SharesOutItsRow) {
  struct Row {
    const char* name;
    double room;
    ControlBarContent content;
    ControlBarRow shared;
  };
  const ControlBarContent little{.speedWidth = 38};
  const ControlBarContent all{.hasQueue = true, .hasChapters = true, .speedWidth = 38};
  for (const Row& row : {
           Row{"wide", 724, little, {14, 8, 298, 92}},
           Row{"wide with everything", 724, all, {14, 8, 256, 92}},
           Row{"moves aside", 600, all, {14, 8, 162, 92}},
           Row{"at the least window", 444, all, {4, 2, 76, 42}},
           Row{"at the least window, with little", 444, little, {14, 8, 126, 92}},
           Row{"without a slider", 420, all, {4, 2, 52, 0}},
       })
    EXPECT_EQ(controlBarRow(row.room, row.content), row.shared)
        << row.name << ": " << controlBarRow(row.room, row.content).transportX << ' '
        << controlBarRow(row.room, row.content).volumeWidth;
}

TEST(ControlBarValuesTest, PlacesAboveAndInside) {
  const QSizeF size(100, 200);
  const QSizeF room(520, 300);
  EXPECT_EQ(placeAbove({250, 260, 20, 20}, size, room), QPointF(210, 52));
  EXPECT_EQ(placeAbove({500, 260, 20, 20}, size, room), QPointF(412, 52));
  EXPECT_EQ(placeAbove({0, 190, 20, 20}, size, room), QPointF(8, 8));
}

}  // namespace
}  // namespace tromelo
