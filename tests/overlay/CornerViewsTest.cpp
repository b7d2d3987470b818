#include <QAccessible>
#include <QSet>

#include "ViewTest.h"
#include "glass/GlassRendering.h"

namespace tromelo {
namespace {

/// The badge, the info panel, the toast and the close button.
class CornerViewsTest : public testing::ViewTest {};

TEST_F(CornerViewsTest, TheBadgeTellsRangeTitleAndChapter) {
  const QQuickItem& badge = show("PlayerSignalBadge", {{"playback", model()}});
  EXPECT_FALSE(isShown("rangeTag") || isShown("badgeChapter"));
  EXPECT_EQ(text("badgeTitle"), "No video selected");
  const double plain = badge.implicitWidth();
  const double low = badge.implicitHeight();

  for (const auto& [gamma, tag] : {std::pair{"pq", "HDR10"}, {"hlg", "HLG"}}) {
    report(MpvProperty::gamma, MpvValue(std::string(gamma)));
    EXPECT_TRUE(isShown("rangeTag"));
    EXPECT_EQ(text("rangeText"), tag);
  }
  EXPECT_FALSE(item("rangeTag")->property("isGold").toBool());
  EXPECT_EQ(badge.implicitWidth(), plain + item("rangeTag")->width() + 9);
  report(MpvProperty::dolbyVisionProfile, MpvValue(std::int64_t{8}));
  EXPECT_EQ(text("rangeText"), "DOLBY VISION");
  EXPECT_TRUE(item("rangeTag")->property("isGold").toBool());

  reportChapters({0, 50});
  report(MpvProperty::chapter, MpvValue(std::int64_t{1}));
  EXPECT_EQ(text("badgeChapter"), "A chapter");
  EXPECT_TRUE(isShown("badgeChapter"));
  layOut();
  EXPECT_GT(badge.implicitHeight(), low);
  report(MpvProperty::chapter, MpvValue(std::int64_t{3}));
  EXPECT_FALSE(isShown("badgeChapter"));

  const double high = badge.implicitHeight();
  for (const char* lineBreak : {"\n", "\r\n", "\u2028"}) {
    report(MpvProperty::mediaTitle, MpvValue(std::string("A") + lineBreak + "film"));
    EXPECT_EQ(text("badgeTitle"), "A film");
  }
  report(MpvProperty::mediaTitle, MpvValue(std::string(300, 'm') + '\n' + std::string(300, 'm')));
  EXPECT_EQ(badge.implicitHeight(), high);
  view_->setWidth(badge.implicitWidth());
  EXPECT_EQ(item("badgeTitle")->width(), 360);
  EXPECT_TRUE(item("badgeTitle")->property("truncated").toBool());
  EXPECT_EQ(item("badgeTitle")->property("lineCount"), 1);
}

TEST_F(CornerViewsTest, TheInfoPanelTellsWhatIsPlayed) {
  QQuickItem& panel = show("PlayerInfoPanel", {{"playback", model()}, {"chrome", chrome()}});
  EXPECT_FALSE(panel.isVisible());
  player().chrome().setShowsInfo(true);
  EXPECT_TRUE(panel.isVisible());
  load(60);
  report(MpvProperty::decoderDrops, MpvValue(std::int64_t{0}));
  report(MpvProperty::outputDrops, MpvValue(std::int64_t{12}));
  for (const auto& [property, value] : {std::pair{MpvProperty::hwdecCurrent, "vaapi"},
                                        {MpvProperty::gamma, "pq"},
                                        {MpvProperty::targetGamma, "bt.1886"},
                                        {MpvProperty::videoFormat, "hevc"},
                                        {MpvProperty::fileFormat, "matroska"}})
    report(property, MpvValue(std::string(value)));
  playback_.updateDisplay(ScreenHeadroom{4, 2});
  QSet<QString> values;
  struct Row {
    const char* name;
    const char* label;
    QString value;
  };
  for (const Row& row : {Row{"infoSignal", "Signal", playback_.dynamicRange().label()},
                         Row{"infoOutput", "Output", playback_.output()},
                         Row{"infoDisplay", "Display", playback_.display()},
                         Row{"infoVideo", "Video", QStringLiteral("— · —")},
                         Row{"infoCodec", "Codec", playback_.codec()},
                         Row{"infoDecoder", "Decoder", playback_.decoder()},
                         Row{"infoContainer", "Container", playback_.container()},
                         Row{"infoDropped", "Dropped", "0 decode · 12 output"}}) {
    EXPECT_EQ(text(row.name, "label"), row.label);
    EXPECT_EQ(text(row.name, "value"), row.value) << row.name;
    values << row.value;
  }
  EXPECT_EQ(values.size(), 8) << "none can stand in for another";
  EXPECT_EQ(panel.width(), 330);
  panel.setHeight(100);
  layOut();
  EXPECT_FALSE(frame(&panel).contains(frame(item("infoDropped"))));
}

TEST_F(CornerViewsTest, TheToastIsSaid) {
  QQuickItem& toast = show("PlayerToast", {{"chrome", chrome()}});
  EXPECT_FALSE(toast.isVisible());
  player().chrome().setToast(QStringLiteral("Volume 50%"));
  EXPECT_TRUE(toast.isVisible());
  EXPECT_GT(toast.implicitWidth(), 80);
  const double high = toast.implicitHeight();
  player().chrome().setToast(QStringLiteral("Chapter: one\nand\ntwo"));
  EXPECT_EQ(toast.implicitHeight(), high);
}

TEST_F(CornerViewsTest, SurfacesAreDrawnAsWasChosen) {
  for (const auto rendering : {GlassRendering::glass, GlassRendering::material}) {
    setGlassRendering(rendering);
    show("OverlaySurface");
    EXPECT_EQ(isShown("glassPane"), rendering == GlassRendering::glass);
    EXPECT_EQ(isShown("glassMaterial"), rendering == GlassRendering::material);
    view_.reset();
  }
}

}  // namespace
}  // namespace tromelo
