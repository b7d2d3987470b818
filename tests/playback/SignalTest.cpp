#include "ModelTest.h"
#include "playback/SignalTexts.h"
#include "support/Table.h"

namespace tromelo::testing {

using Kind = DynamicRange::Kind;
using P = MpvProperty;

struct Signal : ModelTest {};

TEST(DynamicRange, ComesFromWhatTheEngineSaysOfTheVideo) {
  for (const auto& [what, gamma, colormatrix, profile, expected, label] :
       Table<const char*, std::optional<std::string>, std::optional<std::string>,
             std::optional<std::int64_t>, DynamicRange, const char*>{
           {"nothing", {}, {}, {}, {}, "SDR"},
           {"bt.1886", "bt.1886", "bt.709", {}, {}, "SDR"},
           {"pq", "pq", "bt.2020-ncl", {}, {Kind::hdr10, {}}, "HDR10 · PQ"},
           {"pq, profile 0", "pq", {}, 0, {Kind::hdr10, {}}, "HDR10 · PQ"},
           {"hlg", "hlg", {}, {}, {Kind::hlg, {}}, "HLG"},
           {"pq, profile 8", "pq", {}, 8, {Kind::dolbyVision, 8}, "Dolby Vision · Profile 8"},
           {"its matrix only", "pq", "dolbyvision", {}, {Kind::dolbyVision, {}}, "Dolby Vision"},
       }) {
    FileFacts facts;
    facts.gamma = gamma;
    facts.colormatrix = colormatrix;
    facts.dolbyVisionProfile = profile;
    EXPECT_EQ(dynamicRangeOf(facts), expected) << what;
    EXPECT_EQ(dynamicRangeOf(facts).label(), label) << what;
  }
}

TEST(SignalTexts, SayWhatGoesToTheScreen) {
  for (const auto& [gamma, primaries, kind, expected] :
       Table<std::optional<std::string>, std::optional<std::string>, Kind, std::optional<QString>>{
           {std::nullopt, {}, Kind::sdr, {}},
           {"pq", "bt.2020", Kind::hdr10, "HDR · PQ · BT.2020 (EDR)"},
           {"pq", {}, Kind::sdr, "HDR · PQ (EDR)"},
           {"hlg", "bt.2020", Kind::hlg, "HDR · HLG · BT.2020 (EDR)"},
           {"bt.1886", "bt.709", Kind::hdr10, "Tone-mapped to SDR · BT.709"},
           {"bt.1886", "bt.709", Kind::sdr, "SDR · BT.709"},
           {"srgb", {}, Kind::dolbyVision, "Tone-mapped to SDR"},
       }) {
    FileFacts facts;
    facts.targetGamma = gamma;
    facts.targetPrimaries = primaries;
    EXPECT_EQ(outputText(facts, {kind, {}}), expected) << expected.value_or("none").toStdString();
  }
}

TEST(SignalTexts, SayWhatTheScreenCanShow) {
  EXPECT_EQ(displayText({16, 4.3}), "EDR · 16.0× headroom (now 4.3×)");
  EXPECT_EQ(displayText({1, 1}), "SDR display");
  EXPECT_EQ(displayText({NAN, NAN}), "SDR display");
}

TEST_F(Signal, FollowsWhatIsReportedAndIsForgottenWithItsFile) {
  report(P::targetGamma, "bt.1886");
  EXPECT_EQ(model().output(), "SDR");
  report(P::gamma, "pq");
  EXPECT_EQ(model().dynamicRange().label(), "HDR10 · PQ");
  EXPECT_EQ(model().output(), "Tone-mapped to SDR");
  report(P::targetPrimaries, "bt.709");
  report(P::colormatrix, "dolbyvision");
  report(P::dolbyVisionProfile, std::int64_t{5});
  EXPECT_EQ(model().dynamicRange().label(), "Dolby Vision · Profile 5");
  for (const P gone :
       {P::gamma, P::colormatrix, P::dolbyVisionProfile, P::targetGamma, P::targetPrimaries}) {
    report(gone, {});
  }
  EXPECT_EQ(model().dynamicRange().label(), "Dolby Vision · Profile 5");
  EXPECT_EQ(model().output(), "Tone-mapped to SDR · BT.709");

  model().updateDisplay(ScreenHeadroom{2, 1.5});
  report(event::StartFile{});
  EXPECT_EQ(model().dynamicRange(), DynamicRange());
  EXPECT_EQ(model().output(), "—");
  EXPECT_EQ(model().display(), "EDR · 2.0× headroom (now 1.5×)");
  model().updateDisplay({});
  EXPECT_EQ(model().display(), "EDR · 2.0× headroom (now 1.5×)");
  report(P::targetGamma, "hlg");
  EXPECT_EQ(model().output(), "HDR · HLG (EDR)");
  report(P::targetGamma, true);
  EXPECT_EQ(model().output(), "—");
}

}  // namespace tromelo::testing
