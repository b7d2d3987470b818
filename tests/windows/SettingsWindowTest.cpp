#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

#include "engine/MpvClientApi.h"
#include "engine/MpvEngine.h"
#include "films/FilmMemory.h"
#include "playback/SoundDevices.h"
#include "settings/PlayerSettings.h"
#include "support/Home.h"
#include "support/Reader.h"
#include "support/Table.h"
#include "support/ViewDriver.h"
#include "support/WaitFor.h"
#include "support/Warnings.h"
#include "windows/ProgramWindow.h"
#include "windows/SettingsPages.h"

namespace tromelo::testing {

using Page = SettingsPages::Page;
using enum SettingsPages::Page;

struct SettingsWindowTest : ::testing::Test, protected Home, protected ViewDriver {
  void SetUp() override { allowWarning("This plugin does not support"); }
  QQuickWindow& window() override { return shell_.isOpen() ? shell_.show() : host_; }
  void show(Page page) {
    pages_.setPage(page);
    shell_.show();
    EXPECT_TRUE(waitFor([this] { return window().isActive(); }));
    layOut();
  }
  void tabTo(const char* name) {
    for (int i = 0; i < 20 && window().activeFocusItem() != item(name); ++i) key(Qt::Key_Tab);
    EXPECT_EQ(window().activeFocusItem(), item(name)) << name;
  }

  PlayerSettings settings_{defaults_};
  MpvEngine mpv_{MpvClientApi::libmpv()};
  SoundDevices devices_{mpv_, settings_, [] { return MpvValue(); }};
  FilmMemory films_{directory_.filePath("films.sqlite"),
                    [](const QString& told) { ADD_FAILURE() << told.toStdString(); }};
  QQmlEngine engine_;
  SettingsPages pages_;
  ProgramWindow shell_{engine_,
                       "SettingsWindow",
                       {{"settings", QVariant::fromValue(&settings_)},
                        {"pages", QVariant::fromValue(&pages_)},
                        {"devices", QVariant::fromValue(&devices_)},
                        {"films", QVariant::fromValue(&films_)}}};
};

TEST_F(SettingsWindowTest, FilmsAreForgottenByWhoSaysSoTwice) {
  films_.remember({"1f-aa", 7200}, {.position = 100}, "/a.mkv");
  const auto areKnown = [this] {
    std::optional<bool> known;
    films_.findProgress("/a.mkv", &films_,
                        [&](const FilmProgress& found) { known = found != FilmProgress(); });
    EXPECT_TRUE(waitFor([&] { return known.has_value(); }));
    return known.value_or(false);
  };
  show(Playback);
  tabTo("forgetFilms");
  const QRectF place = item("forgetFilms")->mapRectToScene(item("forgetFilms")->boundingRect());
  key(Qt::Key_Return);
  layOut();
  EXPECT_EQ(window().activeFocusItem(), item("keepFilms"));
  EXPECT_TRUE(
      item("keepFilms")->mapRectToScene(item("keepFilms")->boundingRect()).contains(place.center()))
      << "a second click by mistake";
  key(Qt::Key_Return);
  layOut();
  EXPECT_TRUE(areKnown());
  tabTo("forgetFilms");
  key(Qt::Key_Return);
  layOut();
  tabTo("forgetFilmsNow");
  key(Qt::Key_Return);
  EXPECT_FALSE(areKnown());
}

TEST_F(SettingsWindowTest, EveryControlCanBeUsedByKeys) {
  show(General);
  tabTo("autoHideDelay");
  for (int i = 0; i < 4; ++i) key(Qt::Key_Down);
  EXPECT_EQ(settings_.autoHideDelay(), 0);
  EXPECT_EQ(defaults_.value("playerSettings")[u"autoHideDelay"], QJsonValue(0));
  tabTo("tabGeneral");
  key(Qt::Key_Right);
  layOut();
  tabTo("resumesFilms");
  key(Qt::Key_Space);
  EXPECT_FALSE(settings_.resumesFilms());
  key(Qt::Key_Space);
  tabTo("goesOnInFolder");
  key(Qt::Key_Return);
  EXPECT_TRUE(settings_.goesOnInFolder());
  tabTo("forgetFilms");
  key(Qt::Key_Tab);
  EXPECT_EQ(window().activeFocusItem(), item("tabPlayback"));
  key(Qt::Key_Right);
  layOut();
  ASSERT_EQ(window().activeFocusItem(), item("tabSubtitles"));
  for (const auto& [control, key, holds] : Table<const char*, Qt::Key, std::function<bool()>>{
           {"subtitleFont", Qt::Key_Down,
            [this] { return settings_.subtitleFont() == "Avenir Next"; }},
           {"subtitleBold", Qt::Key_Return, [this] { return settings_.subtitleBold(); }},
           {"subtitleSize", Qt::Key_Right, [this] { return settings_.subtitleSize() == 46; }},
           {"subtitleColorPreset", Qt::Key_Space,
            [this] { return settings_.subtitleColor() == RgbaColor(1, 1, 1); }},
           {"segmentOutline", Qt::Key_Right,
            [this] { return settings_.subtitleBorderStyle() == SubtitleBorderStyle::shadow; }},
           {"subtitleOverridesStyled", Qt::Key_Space,
            [this] { return settings_.subtitleOverridesStyled(); }},
           {"resetSubtitleStyle", Qt::Key_Return,
            [this] {
              return settings_.preferences() ==
                     PlayerPreferences{.autoHideDelay = 0, .goesOnInFolder = true};
            }},
       }) {
    tabTo(control);
    this->key(key);
    EXPECT_TRUE(holds()) << control;
  }
  show(Shortcuts);
  tabTo("shortcutList");
  for (int i = 0; i < 9; ++i) key(Qt::Key_PageDown);
  EXPECT_EQ(
      item("shortcutList")->property("contentY").toDouble(),
      item("shortcutList")->property("contentHeight").toDouble() - item("shortcutList")->height());
}

TEST_F(SettingsWindowTest, ShowsWhatIsSetElsewhere) {
  show(Subtitles);
  settings_.setSubtitleSize(45.9);
  EXPECT_EQ(text("subtitleSizeText"), "45");
  tabTo("subtitleSize");
  key(Qt::Key_Left);
  EXPECT_EQ(settings_.subtitleSize(), 44);  // on a step again
  key(Qt::Key_End);
  key(Qt::Key_Right);
  EXPECT_LE(settings_.subtitleSize(), 80);
  settings_.setSubtitleOutlineColor({0.5, 0, 0});
  for (const int style : {2, 0, 1}) {
    settings_.setSubtitleBorderStyle(SubtitleBorderStyle(style));
    EXPECT_EQ(item("subtitleOutlineColor")->isVisible(), style != 2);
  }
  EXPECT_EQ(item("subtitleOutlineColor")->property("color").value<QColor>(),
            settings_.subtitleOutlineColor().toQColor());
  layOut();
  const auto presets = items("subtitleColorPreset");
  ASSERT_EQ(presets.size(), 4);
  click(presets[1]);
  EXPECT_EQ(settings_.subtitleColor(), RgbaColor(1, 0.93, 0.35));

  show(General);
  settings_.setAutoHideDelay(4);
  EXPECT_EQ(text("autoHideDelay", "displayText"), "4 seconds");
}

TEST_F(SettingsWindowTest, AColorThatIsTriedAndCancelledLeavesNothing) {
  show(Subtitles);
  int writes = 0;
  QObject::connect(&settings_, &PlayerSettings::willChange, &window(), [&] { ++writes; });
  const auto open = [this](const char* well) -> QColorDialog& {
    click(item(well));
    auto* const dialog = qobject_cast<QColorDialog*>(QApplication::topLevelWidgets().value(0));
    if (!dialog) qFatal("no dialog for %s", well);
    return *dialog;
  };
  for (const auto& [well, chosen] :
       {std::pair{"subtitleColor", &PlayerSettings::subtitleColor},
        {"subtitleOutlineColor", &PlayerSettings::subtitleOutlineColor}}) {
    SCOPED_TRACE(well);
    const RgbaColor before = (settings_.*chosen)();
    for (const int tries : {0, 1}) {
      writes = 0;
      QColorDialog& dialog = open(well);
      if (tries) dialog.setCurrentColor(Qt::red);
      EXPECT_EQ((settings_.*chosen)(), tries ? RgbaColor(1, 0, 0) : before);
      dialog.reject();
      EXPECT_EQ((settings_.*chosen)(), before);
      EXPECT_EQ(writes, 2 * tries);
      settle();
    }
    QColorDialog& dialog = open(well);
    dialog.setCurrentColor(Qt::blue);
    dialog.accept();
    EXPECT_EQ((settings_.*chosen)(), RgbaColor(0, 0, 1));
    settle();
  }
}

TEST_F(SettingsWindowTest, ThereIsOneUntilItIsClosedAndItIsAsHighAsItsPage) {
  show(General);
  EXPECT_EQ(&window(), &shell_.show());
  for (const Page page : {General, Subtitles, Shortcuts}) {
    show(page);
    EXPECT_EQ(window().size(),
              QSize(520, window().contentItem()->childItems()[0]->implicitHeight()));
  }
  key(Qt::Key_Escape);
  EXPECT_FALSE(shell_.isOpen());
  show(General);
  tabTo("autoHideDelay");
  key(Qt::Key_Return);
  key(Qt::Key_Escape);
  EXPECT_TRUE(shell_.isOpen()) << "Esc closes the list first";
  key(Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(shell_.isOpen());
}

TEST_F(SettingsWindowTest, AllIsKnownAndUsedWithoutBeingSeen) {
  using enum QAccessible::Role;
  show(General);
  Reader reader(window());
  EXPECT_TRUE(reader.state(PageTab, "General").selected);
  reader.expectNames();
  reader.press(ComboBox, "Hide player controls after");
  reader.press(ListItem, "5 seconds");
  EXPECT_EQ(settings_.autoHideDelay(), 5);
  EXPECT_EQ(reader.find(ComboBox, "Hide player controls after")->text(QAccessible::Description),
            "5 seconds");
  reader.press(PageTab, "Subtitles");
  reader.expect(Button, {"White", "Light green", "Custom color", "Reset"});
  reader.expect(ComboBox, {"Font"});
  reader.expect(CheckBox, {"Also restyle styled (ASS) subtitles"});
  reader.expectNames();
  reader.press(CheckBox, "Bold");
  EXPECT_TRUE(settings_.subtitleBold() && reader.state(CheckBox, "Bold").checked);
  reader.set(Slider, "Size", 60);
  EXPECT_EQ(settings_.subtitleSize(), 60);
  reader.press(RadioButton, "Box");
  EXPECT_EQ(settings_.subtitleBorderStyle(), SubtitleBorderStyle::box);
  EXPECT_TRUE(reader.state(RadioButton, "Box").checked);
  EXPECT_FALSE(reader.state(RadioButton, "Outline").checked);
  reader.press(PageTab, "Shortcuts");
  reader.expect(List, {"Keyboard Shortcuts"});
  reader.expect(Heading, {"Playback"});
  reader.expect(ListItem, {"Space: Play / pause"});
  reader.expectNames();
}

}  // namespace tromelo::testing
