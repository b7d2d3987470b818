#include "display/PicturePlacement.h"

#include <gtest/gtest.h>

namespace tromelo::testing {

TEST(PicturePlacementTest, FitsWithTheAspectKept) {
  const struct {
    const char* name;
    QSize picture;
    QSizeF item;
    qreal ratio;
    PicturePlacement expected;
  } cases[] = {
      {"same size", {640, 360}, {640, 360}, 1, {{0, 0, 640, 360}, true}},
      {"same pixels at twice the scale", {1280, 720}, {640, 360}, 2, {{0, 0, 640, 360}, true}},
      {"same pixels at one and a half",
       {961, 541},
       {640.6, 360.6},
       1.5,
       {{0, 0, 961 / 1.5, 541 / 1.5}, true}},
      {"wider item", {640, 360}, {1000, 360}, 1, {{180, 0, 640, 360}, true}},
      {"odd space beside it", {640, 360}, {643, 360}, 1, {{1, 0, 640, 360}, true}},
      {"taller item", {640, 360}, {1280, 1000}, 1, {{0, 140, 1280, 720}, false}},
      {"smaller item", {640, 360}, {320, 320}, 1, {{0, 70, 320, 180}, false}},
      {"no picture", {0, 0}, {640, 360}, 1, {}},
      {"no room", {640, 360}, {0, 360}, 1, {}},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(placePicture(row.picture, row.item, row.ratio), row.expected) << row.name;
  }
}

}  // namespace tromelo::testing
