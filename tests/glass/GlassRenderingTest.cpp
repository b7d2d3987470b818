#include "glass/GlassRendering.h"

#include <gtest/gtest.h>

namespace tromelo {
namespace {

TEST(GlassRendering, FollowsThePersonThenTheMachine) {
  struct Row {
    const char* asked;
    bool software;
    GlassRendering rendering;
  };
  for (const Row& row :
       {Row{"glass", true, GlassRendering::glass}, Row{"material", false, GlassRendering::material},
        Row{"", true, GlassRendering::material}, Row{"", false, GlassRendering::glass},
        Row{"Glass", true, GlassRendering::material}})
    EXPECT_EQ(chooseGlassRendering(row.asked, row.software), row.rendering) << row.asked;
}

}  // namespace
}  // namespace tromelo
