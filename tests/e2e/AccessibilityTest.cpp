#include <map>

#include "Assistance.h"
#include "EndToEnd.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

/// A person who doesn't see the screen.
class Accessibility : public EndToEnd {
 protected:
  struct Expected {
    const char* role;
    const char* name;
    QStringList states{};
  };

  void SetUp() override {
    if (!screen::isX11()) GTEST_SKIP() << "the headless Wayland host has no hand and no keys";
  }

  void start(const QStringList& files = {}) {
    player.environment.insert("TROMELO_REDUCED_MOTION", "1");
    player.start(files);
    const char* const title = files.isEmpty() ? "Tromelo" : "tracks";
    ASSERT_TRUE(files.isEmpty() || player.waitUntilPlaying());
    ASSERT_TRUE(player.waitUntil([&] { return isActive(title); }));
  }

  /// All of these are there, each once, and nothing that can be used lacks a name or is like
  /// another.
  void expectSeen(const char* window, const std::vector<Expected>& expected) {
    SCOPED_TRACE(window);
    for (const Expected& object : expected) reader.find(object.role, object.name, object.states);
    std::map<QString, int> times;
    for (const SeenObject& object : reader.see()) {
      if (object.window != QLatin1StringView(window) || object.actions.isEmpty()) continue;
      EXPECT_FALSE(object.name.isEmpty())
          << object.role.toStdString() << " in " << object.within.toStdString();
      EXPECT_FALSE(object.place.isEmpty()) << object.name.toStdString();
      ++times[object.within + object.role + u' ' + object.name + u' ' + object.description];
    }
    for (const auto& [object, count] : times) EXPECT_EQ(count, 1) << object.toStdString();
  }

  Assistance reader{player};
};

TEST_F(Accessibility, ThePlayerIsKnownAndUsed) {
  ASSERT_NO_FATAL_FAILURE(start({clip("tracks.mkv")}));
  EngineProbe engine = probe();
  EXPECT_TRUE(reader.press("button", "Pause"));
  ASSERT_TRUE(player.waitFor("status", "Paused"));
  expectSeen("tracks.mkv", {{"button", "Close player"},
                            {"label", "tracks"},
                            {"tool bar", "Playback controls"},
                            {"button", "Mute"},
                            {"button", "Back 10 seconds"},
                            {"button", "Play"},
                            {"button", "Forward 10 seconds"},
                            {"push button menu", "Playback speed"},
                            {"button", "Full screen"},
                            {"slider", "Position"}});
  EXPECT_TRUE(reader.set("slider", "Volume", 40));
  EXPECT_TRUE(engine.waitFor("volume", 40));
  EXPECT_EQ(reader.find("slider", "Volume").value, "40 of 100");
  EXPECT_TRUE(reader.press("push button menu", "Playback speed"));
  reader.find("menu item", "1×", {"checked"});
  EXPECT_TRUE(reader.press("menu item", "2×"));
  EXPECT_TRUE(engine.waitFor("speed", 2));
  reader.listen();
  screen::press("m");
  EXPECT_TRUE(reader.hears("Muted"));
}

TEST_F(Accessibility, PanelsAreKnownAndUsed) {
  ASSERT_NO_FATAL_FAILURE(start({clip("tracks.mkv")}));
  EngineProbe engine = probe();
  EXPECT_TRUE(reader.press("button", "Pause"));
  engine.command({"loadfile", clip("sample.mp4"), "append"});
  const struct {
    const char* opener;
    std::vector<Expected> objects;
    Expected pressed;
    const char* property;
    QJsonValue value;
  } rows[] = {
      {"Subtitles & audio",
       {{"panel", "Subtitles and audio"},
        {"heading", "Subtitles"},
        {"radio button", "Off"},
        {"radio button", "English"},
        {"button", "Add Subtitle File…"},
        {"panel", "Timing"},
        {"button", "Earlier"}},
       {"radio button", "German", {"checked"}},
       "sid",
       2},
      {"Chapters",
       {{"list", "Chapters"}, {"list item", "Opening"}, {"list item", "Chapter 2"}},
       {"list item", "Closing"},
       "chapter",
       2},
      {"Queue",
       {{"panel", "Queue"},
        {"heading", "Queue"},
        {"button", "Add…"},
        {"button", "Clear Up Next"},
        {"list item", "tracks", {"selected"}},
        {"button", "Remove from queue"}},
       {"list item", "sample"},
       "filename",
       "sample.mp4"},
      {"Playback info", {{"panel", "Playback info"}, {"label", "Codec: H264"}}, {}, nullptr, {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.opener);
    EXPECT_TRUE(reader.press("button", row.opener));
    reader.find("button", row.opener, {"checked"});
    expectSeen("tracks.mkv", row.objects);
    if (row.property) {
      EXPECT_TRUE(reader.press(row.pressed.role, row.pressed.name));
      EXPECT_TRUE(engine.waitFor(row.property, row.value));
    }
  }
}

TEST_F(Accessibility, TheSettingsAreKnownAndUsed) {
  ASSERT_NO_FATAL_FAILURE(start({clip("tracks.mkv")}));
  EngineProbe engine = probe();
  screen::press("ctrl+comma");
  expectSeen("Settings", {{"page tab", "General", {"selected", "focused"}},
                          {"combo box", "Hide player controls after"}});
  EXPECT_TRUE(reader.press("combo box", "Hide player controls after"));
  EXPECT_TRUE(reader.press("list item", "5 seconds"));
  EXPECT_EQ(reader.find("combo box", "Hide player controls after").description, "5 seconds");
  EXPECT_TRUE(reader.press("page tab", "Subtitles"));
  expectSeen("Settings", {{"page tab", "Subtitles", {"selected"}},
                          {"combo box", "Font"},
                          {"button", "White"},
                          {"button", "Light green"},
                          {"button", "Custom color"},
                          {"panel", "Style"},
                          {"radio button", "Outline", {"checked"}},
                          {"check box", "Also restyle styled (ASS) subtitles"},
                          {"button", "Reset"}});
  EXPECT_TRUE(reader.press("check box", "Bold"));
  EXPECT_TRUE(engine.waitFor("sub-bold", true));
  reader.find("check box", "Bold", {"checked"});
  EXPECT_TRUE(reader.set("slider", "Size", 60));
  EXPECT_TRUE(engine.waitFor("sub-font-size", 60));
  EXPECT_TRUE(reader.press("radio button", "Box"));
  EXPECT_TRUE(engine.waitFor("sub-border-style", "background-box"));
  reader.find("radio button", "Box", {"checked"});
  EXPECT_FALSE(reader.find("radio button", "Outline").is("checked"));
  EXPECT_TRUE(reader.press("page tab", "Shortcuts"));
  expectSeen("Settings", {{"list", "Keyboard Shortcuts"},
                          {"heading", "Playback"},
                          {"list item", "Space: Play / pause"}});
}

TEST_F(Accessibility, TheLibraryAndItsMenusAreKnownAndUsed) {
  ASSERT_NO_FATAL_FAILURE(start());
  expectSeen("Tromelo", {{"menu bar", ""},
                         {"menu item", "File"},
                         {"list", "Recently Played"},
                         {"label", "Videos you play appear here."},
                         {"button", "Open"},
                         {"heading", "Drop a Video"},
                         {"button", "Open Videos…"},
                         {"split pane", "Width of the sidebar"}});
  EXPECT_TRUE(reader.press("menu item", "Help"));
  expectSeen("Tromelo", {{"menu item", "Keyboard Shortcuts"}});
  EXPECT_TRUE(reader.press("menu item", "About Tromelo"));
  expectSeen("About Tromelo", {{"heading", "Tromelo"}, {"button", "Copy", {"focused"}}});
  screen::press("Escape");

  reader.listen();
  probe().command({"loadfile", "/nowhere.mkv"});
  EXPECT_TRUE(player.waitUntil([this] { return !player.said("error").isEmpty(); }));
  EXPECT_TRUE(reader.hears(player.said("error").toUtf8().constData()));
}

TEST_F(Accessibility, WhatWasPlayedIsPlayedAgain) {
  ASSERT_NO_FATAL_FAILURE(start({clip("tracks.mkv")}));
  EXPECT_TRUE(reader.press("button", "Close player"));
  expectSeen("Tromelo", {{"list item", "tracks"},
                         {"panel", "Last played"},
                         {"label", "SDR"},
                         {"button", "Play Again"},
                         {"button", "Open Other…"}});
  screen::press("Down");
  reader.find("list item", "tracks", {"selected"});
  EXPECT_TRUE(reader.press("list item", "tracks"));
  EXPECT_TRUE(player.waitUntilPlaying());
}

}  // namespace
}  // namespace tromelo::testing
