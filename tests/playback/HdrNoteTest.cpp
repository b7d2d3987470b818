#include "playback/HdrNote.h"

#include <gtest/gtest.h>

namespace tromelo {

TEST(HdrNoteTest, SaysTheFirstThingThatStandsInTheWay) {
  using Obstacle = PictureWay::Obstacle;
  const ScreenHeadroom hdrScreen{.potential = 5, .current = 5};
  const struct {
    const char* target;
    PictureWay way;
    ScreenHeadroom screen;
    const char* note;
  } rows[] = {
      {"pq", {.managesColor = true}, {}, ""},
      {"hlg", {.obstacle = Obstacle::notWayland}, {}, ""},
      {"bt.1886", {.obstacle = Obstacle::notWayland}, hdrScreen, "needs a Wayland session"},
      {"bt.1886", {.obstacle = Obstacle::asked}, hdrScreen, "off: TROMELO_PICTURE"},
      {"bt.1886",
       {.obstacle = Obstacle::lacksProtocol, .protocol = "wp_viewporter"},
       hdrScreen,
       "desktop lacks wp_viewporter"},
      {"bt.1886",
       {.obstacle = Obstacle::refused, .managesColor = true},
       hdrScreen,
       "refused by the desktop"},
      {"bt.1886", {}, hdrScreen, "no colour management here"},
      {"bt.1886", {.managesColor = true}, {}, "screen is in SDR mode"},
      {"bt.1886", {.managesColor = true}, hdrScreen, "not from this driver"},
  };
  FileFacts facts;
  for (const auto& row : rows) {
    facts.targetGamma = row.target;
    EXPECT_EQ(hdrNote(facts, {DynamicRange::Kind::hdr10, {}}, row.way, row.screen), row.note);
    EXPECT_EQ(hdrNote(facts, {}, row.way, row.screen), "");
  }
}

}  // namespace tromelo
