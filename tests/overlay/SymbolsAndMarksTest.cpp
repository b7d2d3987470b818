#include <gtest/gtest.h>

#include "overlay/SliderTravel.h"
#include "player/Format.h"
#include "support/Table.h"
#include "support/Warnings.h"
#include "theme/Symbols.h"

namespace tromelo::testing {

TEST(SymbolsAndMarksTest, VolumeSymbols) {
  const Table<double, bool, const char*> rows{
      {0, false, "speaker.slash.fill"},    {80, true, "speaker.slash.fill"},
      {0.1, false, "speaker.wave.1.fill"}, {33.9, false, "speaker.wave.1.fill"},
      {34, false, "speaker.wave.2.fill"},  {66.99, false, "speaker.wave.2.fill"},
      {67, false, "speaker.wave.3.fill"}};
  for (const auto& [volume, isMuted, symbol] : rows) {
    EXPECT_EQ(Format::volumeSymbol(volume, isMuted), symbol) << volume;
    EXPECT_EQ(Symbols::glyph(symbol).size(), 1) << symbol;
  }
  expectWarning("There is no symbol named speaker");
  EXPECT_EQ(Symbols::glyph("speaker"), "");
}

TEST(SymbolsAndMarksTest, MarksOfChapters) {
  const auto at = [](QList<double> times) {
    QList<Chapter> chapters;
    for (const double time : times)
      chapters.append({.id = chapters.size(), .title = {}, .time = time});
    return chapters;
  };
  EXPECT_EQ(SliderTravel::marks(at({0, 50}), 100, 216), QList<double>({108}));
  EXPECT_EQ(SliderTravel::marks(at({0, 25, 130}), 100, 216), QList<double>({58, 208}))
      << "at the end";
  EXPECT_EQ(SliderTravel::marks(at({0, 50}), 0, 216), QList<double>());
  EXPECT_EQ(SliderTravel::marks(at({0}), 100, 216), QList<double>());
  EXPECT_EQ(SliderTravel::marks(at({0, 100}), 100, 3), QList<double>({9})) << "no room";
  EXPECT_EQ(SliderTravel::loopMarks({25, {}}, 100, 216), QList<double>({58}));
  EXPECT_EQ(SliderTravel::loopMarks({25, 130}, 100, 216), QList<double>({58, 208}));
  EXPECT_EQ(SliderTravel::loopMarks({25, 130}, 0, 216), QList<double>());
  EXPECT_EQ(Format::remaining(10, 12), "-0:00");
}

}  // namespace tromelo::testing
