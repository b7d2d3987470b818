#include <QSet>

#include "ViewTest.h"
#include "glass/Glass.h"
#include "support/Table.h"

namespace tromelo::testing {

/// The badge, the info panel, the toast and the close button.
struct CornerViewsTest : ViewTest {};

TEST_F(CornerViewsTest, TheBadgeTellsRangeTitleAndChapter) {
  const QQuickItem& badge = show("PlayerSignalBadge", {{"playback", playback()}});
  EXPECT_FALSE(isShown("rangeTag") || isShown("badgeChapter"));
  EXPECT_EQ(text("badgeTitle"), "No video selected");
  const double low = badge.implicitHeight();

  for (const auto& [gamma, tag] : {std::pair{"pq", "HDR10"}, {"hlg", "HLG"}}) {
    report(MpvProperty::gamma, std::string(gamma));
    EXPECT_TRUE(isShown("rangeTag"));
    EXPECT_EQ(text("rangeText"), tag);
  }
  EXPECT_FALSE(item("rangeTag")->property("isGold").toBool());
  report(MpvProperty::dolbyVisionProfile, std::int64_t{8});
  EXPECT_EQ(text("rangeText"), "DOLBY VISION");
  EXPECT_TRUE(item("rangeTag")->property("isGold").toBool());

  reportChapters({0, 50});
  report(MpvProperty::chapter, std::int64_t{1});
  EXPECT_EQ(text("badgeChapter"), "At 50");
  EXPECT_TRUE(isShown("badgeChapter"));
  layOut();
  EXPECT_GT(badge.implicitHeight(), low);
  report(MpvProperty::chapter, std::int64_t{3});
  EXPECT_FALSE(isShown("badgeChapter"));

  const double high = badge.implicitHeight();
  for (const char* lineBreak : {"\n", "\r\n", "\u2028"}) {
    report(MpvProperty::mediaTitle, std::string("A") + lineBreak + "film");
    EXPECT_EQ(text("badgeTitle"), "A film");
  }
  report(MpvProperty::mediaTitle, std::string(300, 'm') + '\n' + std::string(300, 'm'));
  EXPECT_EQ(badge.implicitHeight(), high);
  view_->setWidth(badge.implicitWidth());
  EXPECT_TRUE(item("badgeTitle")->property("truncated").toBool());
  EXPECT_EQ(item("badgeTitle")->property("lineCount"), 1);
}

TEST_F(CornerViewsTest, TheInfoPanelTellsWhatIsPlayed) {
  QQuickItem& panel = show("PlayerInfoPanel", {{"playback", playback()}});
  load(60);
  report(MpvProperty::decoderDrops, std::int64_t{0});
  report(MpvProperty::outputDrops, std::int64_t{12});
  for (const auto& [property, value] : {std::pair{MpvProperty::hwdecCurrent, "vaapi"},
                                        {MpvProperty::gamma, "pq"},
                                        {MpvProperty::targetGamma, "bt.1886"},
                                        {MpvProperty::videoFormat, "hevc"},
                                        {MpvProperty::fileFormat, "matroska"}})
    report(property, MpvValue(std::string(value)));
  playback_.updateDisplay(ScreenHeadroom{4, 2});
  QSet<QString> values;
  for (const auto& [name, label, value] : Table<const char*, const char*, QString>{
           {"infoSignal", "Signal", playback_.dynamicRange().label()},
           {"infoOutput", "Output", playback_.output()},
           {"infoDisplay", "Display", playback_.display()},
           {"infoVideo", "Video", "— · —"},
           {"infoCodec", "Codec", playback_.codec()},
           {"infoDecoder", "Decoder", playback_.decoder()},
           {"infoContainer", "Container", playback_.container()},
           {"infoDropped", "Dropped", "0 decode · 12 output"}}) {
    EXPECT_EQ(text(name, "label"), label);
    EXPECT_EQ(text(name, "value"), value) << name;
    values << value;
  }
  EXPECT_EQ(values.size(), 8) << "none can stand in for another";
  panel.setHeight(100);
  layOut();
  EXPECT_FALSE(frame(&panel).contains(frame(item("infoDropped"))));
}

TEST_F(CornerViewsTest, TheToastIsSaid) {
  QQuickItem& toast = show("PlayerToast", {{"chrome", shownChrome()}});
  EXPECT_FALSE(toast.isVisible());
  chrome().setToast("Volume 50%");
  EXPECT_TRUE(toast.isVisible());
  EXPECT_GT(toast.implicitWidth(), 80);
  const double high = toast.implicitHeight();
  chrome().setToast("Chapter: one\nand\ntwo");
  EXPECT_EQ(toast.implicitHeight(), high);
}

TEST_F(CornerViewsTest, SurfacesAreDrawnAsWasChosen) {
  for (const auto rendering : {Glass::Rendering::glass, Glass::Rendering::material}) {
    Glass::setRendering(rendering);
    show("OverlaySurface");
    EXPECT_EQ(isShown("glassPane"), rendering == Glass::Rendering::glass);
    EXPECT_EQ(isShown("glassMaterial"), rendering == Glass::Rendering::material);
    view_.reset();
  }
}

}  // namespace tromelo::testing
