#include "glass/GlassRendering.h"

#include <gtest/gtest.h>

#include "support/Table.h"

namespace tromelo::testing {

TEST(GlassRendering, FollowsThePersonThenTheMachine) {
  for (const auto& [asked, software, rendering] :
       Table<const char*, bool, GlassRendering>{{"glass", true, GlassRendering::glass},
                                                {"material", false, GlassRendering::material},
                                                {"", true, GlassRendering::material},
                                                {"", false, GlassRendering::glass},
                                                {"Glass", true, GlassRendering::material}})
    EXPECT_EQ(chooseGlassRendering(asked, software), rendering) << asked;
}

}  // namespace tromelo::testing
