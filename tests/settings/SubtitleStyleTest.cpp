#include "settings/SubtitleStyle.h"

#include <gtest/gtest.h>

namespace tromelo {
namespace {

using Lines = std::vector<std::string>;

Lines lines(const SubtitleStyle& style) {
  Lines lines;
  for (const EngineProperty& property : engineProperties(style))
    lines.push_back(property.name + " " + property.value);
  return lines;
}

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

TEST(SubtitleStyleTest, WritesEachBorderStyleInOrder) {
  SubtitleStyle style;
  const Lines first{"sub-font Helvetica Neue", "sub-font-size 44.0",
                    "sub-color 1.000/1.000/1.000/1.000", "sub-bold no", "sub-ass-override scale"};
  EXPECT_EQ(lines(style),
            (first + Lines{"sub-border-style outline-and-shadow", "sub-outline-size 2.6",
                           "sub-outline-color 0.000/0.000/0.000/1.000", "sub-shadow-offset 0"}));
  style.borderStyle = SubtitleBorderStyle::shadow;
  EXPECT_EQ(lines(style),
            (first + Lines{"sub-border-style outline-and-shadow", "sub-outline-size 0.8",
                           "sub-outline-color 0.000/0.000/0.000/1.000", "sub-shadow-offset 2.4",
                           "sub-back-color 0.0/0.0/0.0/0.8"}));
  style.borderStyle = SubtitleBorderStyle::box;
  EXPECT_EQ(lines(style),
            (first + Lines{"sub-border-style background-box", "sub-outline-size 5",
                           "sub-shadow-offset 0", "sub-back-color 0.0/0.0/0.0/0.62"}));
}

TEST(SubtitleStyleTest, WritesEveryPreference) {
  const SubtitleStyle style{.font = QStringLiteral("Noto Sans ゴシック"),
                            .size = 52.5,
                            .color = {1.0 / 3, 0.8, 0, 0.0004},
                            .outlineColor = {0.9999, 0.5, 1, 0.25},
                            .bold = true,
                            .overridesStyled = true};
  EXPECT_EQ(lines(style),
            (Lines{"sub-font Noto Sans ゴシック", "sub-font-size 52.5",
                   "sub-color 0.333/0.800/0.000/0.000", "sub-bold yes", "sub-ass-override force",
                   "sub-border-style outline-and-shadow", "sub-outline-size 2.6",
                   "sub-outline-color 1.000/0.500/1.000/0.250", "sub-shadow-offset 0"}));
}

}  // namespace
}  // namespace tromelo
