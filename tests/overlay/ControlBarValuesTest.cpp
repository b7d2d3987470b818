#include "overlay/ControlBarValues.h"

#include <gtest/gtest.h>

#include "playback/Chapter.h"
#include "support/Warnings.h"
#include "theme/Symbols.h"

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
        Row{67, false, "speaker.wave.3.fill"}}) {
    EXPECT_EQ(volumeSymbol(row.volume, row.isMuted), row.symbol) << row.volume;
    EXPECT_EQ(Symbols::glyph(row.symbol).size(), 1) << row.symbol;
  }
  testing::expectWarning("There is no symbol named speaker");
  EXPECT_EQ(Symbols::glyph("speaker"), "");
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
  EXPECT_EQ(remainingText(10, 12), "-0:00");
}

}  // namespace
}  // namespace tromelo
