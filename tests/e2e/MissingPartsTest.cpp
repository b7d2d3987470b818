#include <QFile>
#include <QLocalServer>
#include <map>

#include "EndToEnd.h"
#include "support/Files.h"
#include "support/Table.h"

namespace tromelo::testing {

using Variables = std::map<QString, QString>;

const Variables kNoOpenGl{{"LIBGL_ALWAYS_SOFTWARE", "1"}, {"GALLIUM_DRIVER", "none"}};
const Variables kNoSound{
    {"PULSE_SERVER", "/no"}, {"PIPEWIRE_REMOTE", "/no"}, {"ALSA_CONFIG_PATH", "/dev/null"}};

Variables broken(const char* part) {
  return {{"LD_PRELOAD", TROMELO_BROKEN_LIBRARIES}, {"BROKEN", part}};
}

/// The program where something is missing.
struct Without : RunningPlayer {
  explicit Without(const Variables& variables) {
    for (const auto& [name, value] : variables) environment.insert(name, value);
  }
  bool showsTheLibraryAndSays(const QString& start) {
    return waitUntil([&] {
      return said("error").startsWith(start) &&
             (!screen::isX11() || !screen::windowOf(processId(), "^Tromelo$").isEmpty());
    });
  }
};

using MissingParts = EndToEnd;

TEST_F(MissingParts, WithoutThemItPlaysOnAndSaysSo) {
  const QString file = player.homePath() + "/file";
  writeFile(file);
  QLocalServer silent;  // nobody reads what it is told
  ASSERT_TRUE(silent.listen(player.homePath() + "/bus"));
  // What it says in the window and on stderr.
  for (const auto& [what, variables, error, line] :
       Table<const char*, Variables, const char*, const char*>{
           {"sound", kNoSound, "No sound device was found; ", ""},
           {"OpenGL", kNoOpenGl, "", ""},
           {"log", {{"XDG_STATE_HOME", file}}, "", "The log of playback can't be written; "},
           {"settings", {{"XDG_CONFIG_HOME", file}}, "", "Your settings can't be saved in "},
           {"bus", {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/bus"}}, "", ""},
           {"bus's answer",
            {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + silent.fullServerName()}},
            "",
            ""},
           {"runtime folder", {{"XDG_RUNTIME_DIR", file}}, "", ""}}) {
    if (variables.contains("XDG_RUNTIME_DIR") && !screen::isX11()) continue;
    SCOPED_TRACE(what);
    Without program(variables);
    program.start({clip("sample.mp4")});
    EXPECT_TRUE(program.waitUntilPlaying());
    EXPECT_TRUE(program.waitUntil(
        [&, start = QString(error)] { return program.said("error").startsWith(start); }));
    EXPECT_TRUE(screen::waitForShot(QString("without-") + what, showsTestPicture));
    EXPECT_EQ(program.quit(), 0);
    EXPECT_TRUE(program.errors().contains(line));
  }
}

TEST_F(MissingParts, WithoutThoseThatItNeedsTheLibraryOpensAndSaysWhy) {
  for (const auto& [variables, clips, error] : Table<Variables, QStringList, const char*>{
           {kNoOpenGl, {}, "OpenGL doesn't work here"},
           {broken("no libmpv"), {clip("sample.mp4")}, "The playback library libmpv was not found"},
           {broken("old libmpv"), {clip("sample.mp4")}, "The playback library libmpv is too old"},
           {broken("folder"),
            {clip("sample.mp4")},
            "Videos can't be shown: no folder could be made for the private display (Read-only"},
           {broken("wlroots"),
            {clip("sample.mp4")},
            "Videos can't be shown: the private display did not start; install"}}) {
    SCOPED_TRACE(error);
    Without program(variables);
    program.start(clips);
    EXPECT_TRUE(program.showsTheLibraryAndSays(error));
    EXPECT_EQ(program.said("window"), "none");
    EXPECT_EQ(program.quit(), 0);
  }
}

TEST_F(MissingParts, WithoutVulkanItSaysWhatToInstallAndTheSoundPlays) {
  Without program({{"VK_DRIVER_FILES", "/no/driver.json"}});
  const QString advice = "No Vulkan driver was found; install one for your graphics ";
  program.start({clip("black.mp4")});
  EXPECT_TRUE(program.showsTheLibraryAndSays("Could not play black: " + advice));
  EngineProbe engine(program.ipcPath());
  engine.set("ao", "null");  // the machine may have no sound
  engine.command({"loadfile", clip("sample.mp4")});
  EXPECT_TRUE(program.showsTheLibraryAndSays(advice));
  EXPECT_TRUE(program.waitFor("status", "Playing"));
  EXPECT_EQ(program.said("window"), "none");
  EXPECT_EQ(program.quit(), 0);
}

}  // namespace tromelo::testing
