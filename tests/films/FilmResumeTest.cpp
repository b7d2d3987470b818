#include "films/FilmResume.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/Table.h"

namespace tromelo::testing {

TEST(FilmResume, GoesOnWhereItIsWorthIt) {
  for (const auto& [what, position, duration, goesOn] : Table<const char*, double, double, bool>{
           {"in the middle", 2530, 7200, true},
           {"short", 100, 299, false},
           {"just long enough", 100, 300, true},
           {"hardly begun", 29.9, 7200, false},
           {"begun", 30, 7200, true},
           {"nearly seen", 94.9 * 72, 7200, true},
           {"seen", 95 * 72, 7200, false},
           {"beyond the end", 9000, 7200, false},
           {"before the beginning", -5, 7200, false},
           {"of unknown length", 2530, 0, false},
           {"nowhere", NAN, 7200, false},
           {"endless", 2530, NAN, false},
       })
    EXPECT_EQ(resumePosition({position, duration}), goesOn ? std::optional(position) : std::nullopt)
        << what;
}

TEST(FilmResume, SaysHowMuchIsLeft) {
  for (const auto& [left, text] : Table<double, const char*>{{30, "1 min left"},
                                                             {1860, "31 min left"},
                                                             {1861, "32 min left"},
                                                             {3600, "1 h left"},
                                                             {3900, "1 h 5 min left"}})
    EXPECT_EQ(leftText({7200 - left, 7200}), text);
}

}  // namespace tromelo::testing
