#include "settings/PlayerSettings.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <limits>

#include "support/Files.h"
#include "support/Home.h"
#include "support/Table.h"

namespace tromelo::testing {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
const QString kKey = "playerSettings";

QString key(const char* name) { return name; }

/// Differs from the default in every entry.
const QJsonObject& allStored() {
  static const QJsonObject stored{
      {"autoHideDelay", 0},
      {"resumesFilms", false},
      {"goesOnInFolder", true},
      {"subtitleFont", "Comic Neue"},
      {"subtitleSize", 52.5},
      {"subtitleColor", QJsonArray{1.0 / 3, 0.93, 0.35, 0.1}},
      {"subtitleOutlineColor", QJsonArray{0.1, 0.2, 0.3, 0.4}},
      {"subtitleBorderStyle", "box"},
      {"subtitleBold", true},
      {"subtitleOverridesStyled", true},
      {"audioDevice", "alsa/hdmi"},
      {"passesSoundThrough", true},
  };
  return stored;
}

using Lines = std::vector<std::string>;

Lines lines(const PlayerPreferences& style) {
  Lines lines;
  for (const EngineProperty& property : engineProperties(style))
    lines.push_back(property.name + " " + property.value);
  return lines;
}

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

TEST(EnginePropertiesTest, WritesEveryPreferenceInOrder) {
  PlayerPreferences style{.subtitleFont = "Noto Sans ゴシック",
                          .subtitleSize = 52.5,
                          .subtitleColor = {1.0 / 3, 0.8, 0, 0.0004},
                          .subtitleOutlineColor = {0.9999, 0.5, 1, 0.25},
                          .subtitleBold = true,
                          .subtitleOverridesStyled = true,
                          .passesSoundThrough = true};
  const Lines first{"sub-font Noto Sans ゴシック",
                    "sub-font-size 52.5",
                    "sub-color 0.333/0.800/0.000/0.000",
                    "sub-bold yes",
                    "sub-ass-override force",
                    "audio-device auto",
                    "audio-spdif ac3,eac3,dts,dts-hd,truehd"};
  const std::string edge = "sub-outline-color 1.000/0.500/1.000/0.250";
  for (const auto& [border, more] : Table<SubtitleBorderStyle, Lines>{
           {SubtitleBorderStyle::outline,
            {"sub-border-style outline-and-shadow", "sub-outline-size 2.6", edge,
             "sub-shadow-offset 0"}},
           {SubtitleBorderStyle::shadow,
            {"sub-border-style outline-and-shadow", "sub-outline-size 0.8", edge,
             "sub-shadow-offset 2.4", "sub-back-color 0.0/0.0/0.0/0.8"}},
           {SubtitleBorderStyle::box,
            {"sub-border-style background-box", "sub-outline-size 5", "sub-shadow-offset 0",
             "sub-back-color 0.0/0.0/0.0/0.62"}}}) {
    style.subtitleBorderStyle = border;
    EXPECT_EQ(lines(style), first + more);
  }
  const Lines fresh = lines({});
  EXPECT_TRUE(std::ranges::count(fresh, "sub-bold no") &&
              std::ranges::count(fresh, "sub-ass-override scale"));
}

struct PlayerSettingsTest : ::testing::Test, protected Home {
  QJsonObject stored() const { return defaults_.value(kKey).toObject(); }
};

TEST(PlayerPreferencesTest, KeepsEveryEntryExactly) {
  EXPECT_EQ(storedPreferences(preferencesOf(allStored())), allStored());
  EXPECT_EQ(preferencesOf({}), PlayerPreferences());
}

TEST(PlayerPreferencesTest, AnEntryOfAnotherTypeLosesOnlyItself) {
  const QJsonValue null(QJsonValue::Null);
  const std::vector<QJsonValue> noNumbers{true, "2", null, QJsonArray{2}};
  const std::vector<QJsonValue> noFlags{1, "true", null};
  const std::vector<QJsonValue> noColors{QJsonArray{0, 0, 0},
                                         QJsonArray{0, 0, 0, 1, 1},
                                         QJsonArray{0, 0, 0, "1"},
                                         QJsonArray{0, 0, true, 1},
                                         "#ffffff",
                                         null,
                                         QJsonObject{{"red", 1}},
                                         QJsonArray{}};
  const QJsonObject fresh = storedPreferences({});
  QJsonObject allMistyped;
  const Table<const char*, std::vector<QJsonValue>> rows{
      {"autoHideDelay", noNumbers},       {"subtitleFont", {7, null, QJsonArray{"Arial"}}},
      {"subtitleSize", noNumbers},        {"subtitleColor", noColors},
      {"subtitleOutlineColor", noColors}, {"subtitleBorderStyle", {"Box", "", 2, null}},
      {"subtitleBold", noFlags},          {"subtitleOverridesStyled", noFlags},
      {"goesOnInFolder", noFlags},
  };
  for (const auto& [name, mistyped] : rows) {
    for (const QJsonValue& value : mistyped) {
      QJsonObject stored = allStored();
      stored[key(name)] = value;
      allMistyped[key(name)] = value;
      QJsonObject expected = allStored();
      expected[key(name)] = fresh[key(name)];
      EXPECT_EQ(storedPreferences(preferencesOf(stored)), expected) << name;
    }
  }
  EXPECT_EQ(preferencesOf(allMistyped), PlayerPreferences());
}

TEST(PlayerPreferencesTest, TakesNonsenseToTheNearestSense) {
  const QJsonObject stored{{"autoHideDelay", -3},
                           {"subtitleSize", 1e300},
                           {"subtitleColor", QJsonArray{255, -1, 0.5, 2}}};
  const PlayerPreferences kept = preferencesOf(stored);
  EXPECT_EQ(kept.autoHideDelay, 0);
  EXPECT_EQ(kept.subtitleSize, 9000);
  EXPECT_EQ(kept.subtitleColor, RgbaColor(1, 0, 0.5, 1));
  for (const double unreadable : {-44.0, 0.0, -kInfinity, kNan})
    EXPECT_EQ(keptSubtitleSize(unreadable), 44) << unreadable;
  EXPECT_EQ(keptAutoHideDelay(kInfinity), 86'400);
  EXPECT_EQ(keptAutoHideDelay(kNan), 2);
  EXPECT_EQ(RgbaColor(kNan, kInfinity, -kInfinity), RgbaColor(0, 1, 0));
}

TEST(RgbaColorTest, TakesColorsOfEverySpaceAsTheirSrgbComponents) {
  EXPECT_EQ(RgbaColor(QColor(204, 0, 51, 102)), RgbaColor(0.8, 0, 0.2, 0.4));
  EXPECT_EQ(RgbaColor(QColor::fromHsv(120, 255, 255)), RgbaColor(0, 1, 0));
  EXPECT_EQ(RgbaColor(QColor::fromCmyk(0, 255, 255, 0)), RgbaColor(1, 0, 0));
  EXPECT_EQ(RgbaColor(QColor::fromRgbF(1.5F, 0, -1, 1)), RgbaColor(1, 0, 0));
  EXPECT_EQ(RgbaColor(QColor()), RgbaColor(1, 1, 1));
  EXPECT_EQ(RgbaColor(0.8, 0, 0.2, 0.4).toQColor().rgba(), qRgba(204, 0, 51, 102));
}

TEST_F(PlayerSettingsTest, EveryWriteIsThereAfterARestart) {
  {
    PlayerSettings settings(defaults_);
    EXPECT_FALSE(defaults_.contains(kKey));
    settings.setAutoHideDelay(0);
    settings.setResumesFilms(false);
    settings.setGoesOnInFolder(true);
    settings.setSubtitleFont("Comic Neue");
    settings.setSubtitleSize(52.5);
    settings.setSubtitleColor({1.0 / 3, 0.93, 0.35, 0.1});
    settings.setSubtitleOutlineColor({0.1, 0.2, 0.3, 0.4});
    settings.setSubtitleBorderStyle(SubtitleBorderStyle::box);
    settings.setSubtitleBold(true);
    settings.setSubtitleOverridesStyled(true);
    settings.setAudioDevice("alsa/hdmi");
    settings.setPassesSoundThrough(true);
    defaults_.flush();
  }
  UserDefaults later(path_);
  EXPECT_EQ(later.value(kKey).toObject(), allStored());
  PlayerSettings settings(later);
  EXPECT_EQ(settings.subtitleColor(), RgbaColor(1.0 / 3, 0.93, 0.35, 0.1));
  settings.resetSubtitleStyle();
  EXPECT_EQ(later.value(kKey).toObject(), storedPreferences({.autoHideDelay = 0,
                                                             .resumesFilms = false,
                                                             .goesOnInFolder = true,
                                                             .audioDevice = "alsa/hdmi",
                                                             .passesSoundThrough = true}));
}

TEST_F(PlayerSettingsTest, LoadingLeavesAHandEditedEntryAsItIs) {
  const QJsonObject edited{{"subtitleSize", -1}, {"subtitleBold", 1}, {"note", "mine"}};
  defaults_.set(kKey, edited);
  const PlayerSettings settings(defaults_);
  EXPECT_EQ(stored(), edited);
}

TEST_F(PlayerSettingsTest, WhatAPersonEditsInTheFileMeanwhileStays) {
  const QJsonObject font{{"subtitleFont", "Comic Neue"}};
  for (const auto& [name, before, edited] : Table<const char*, QJsonObject, QJsonObject>{
           {"with nothing stored", {}, font},
           {"with all stored", storedPreferences({}), font},
           {"with a note", font, {{"subtitleFont", "Comic Neue"}, {"note", "mine"}}}}) {
    const auto write = [&](const QJsonObject& entry) {
      writeFile(path_, QJsonDocument(QJsonObject{{kKey, entry}}).toJson().toStdString());
    };
    write(before);
    UserDefaults defaults(path_);
    PlayerSettings settings(defaults);
    write(edited);
    settings.setSubtitleSize(52);
    defaults.flush();
    write(edited);
    settings.setSubtitleBold(true);
    settings.setSubtitleSize(44);
    settings.setSubtitleSize(52);
    defaults.flush();
    QJsonObject expected = edited;
    expected["subtitleSize"] = 52;
    expected["subtitleBold"] = true;
    const QJsonObject found = UserDefaults(path_).value(kKey).toObject();
    for (const QString& field : expected.keys())
      EXPECT_EQ(found[field], expected[field]) << name << " " << field.toStdString();
  }
}

TEST_F(PlayerSettingsTest, AnnouncesEachWriteBeforeAndEachChangeAfterIt) {
  PlayerSettings settings(defaults_);
  QList<double> before;
  QList<double> after;
  int delays = 0;
  QObject::connect(&settings, &PlayerSettings::willChange, &settings,
                   [&] { before << settings.subtitleSize(); });
  QObject::connect(&settings, &PlayerSettings::changed, &settings,
                   [&] { after << settings.subtitleSize(); });
  QObject::connect(&settings, &PlayerSettings::autoHideDelayChanged, &settings, [&] { ++delays; });
  settings.setSubtitleSize(30);
  settings.setSubtitleSize(30);
  EXPECT_EQ(before, (QList<double>{44, 30}));
  EXPECT_EQ(after, QList<double>{30});
  settings.setAutoHideDelay(5);
  settings.setAutoHideDelay(5);
  EXPECT_EQ(delays, 1);
  EXPECT_EQ(after, (QList<double>{30, 30}));
}

}  // namespace tromelo::testing
