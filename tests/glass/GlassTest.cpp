#include "glass/Glass.h"

#include <gtest/gtest.h>

#include "support/Table.h"

namespace tromelo::testing {

TEST(GlassTest, FollowsThePersonThenTheMachine) {
  for (const auto& [asked, software, rendering] :
       Table<const char*, bool, Glass::Rendering>{{"glass", true, Glass::Rendering::glass},
                                                  {"material", false, Glass::Rendering::material},
                                                  {"", true, Glass::Rendering::material},
                                                  {"", false, Glass::Rendering::glass},
                                                  {"Glass", true, Glass::Rendering::material}})
    EXPECT_EQ(Glass::choose(asked, software), rendering) << asked;
}

}  // namespace tromelo::testing
