#include <QDir>
#include <QFile>
#include <map>

#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

using Variables = std::map<QString, QString>;

const Variables kNoVulkan{{QStringLiteral("VK_DRIVER_FILES"), QStringLiteral("/no/driver.json")}};
const Variables kNoOpenGl{{QStringLiteral("LIBGL_ALWAYS_SOFTWARE"), QStringLiteral("1")},
                          {QStringLiteral("GALLIUM_DRIVER"), QStringLiteral("none")}};
const Variables kNoSound{{QStringLiteral("PULSE_SERVER"), QStringLiteral("/no")},
                         {QStringLiteral("PIPEWIRE_REMOTE"), QStringLiteral("/no")},
                         {QStringLiteral("ALSA_CONFIG_PATH"), QStringLiteral("/dev/null")}};

Variables broken(const char* part) {
  return {{QStringLiteral("LD_PRELOAD"), QStringLiteral(TROMELO_BROKEN_LIBRARIES)},
          {QStringLiteral("BROKEN"), QString::fromLatin1(part)}};
}

class MissingParts : public EndToEnd {
 protected:
  /// The program of the next row, with a home of its own.
  RunningPlayer& restart(const Variables& variables) {
    next_ = std::make_unique<RunningPlayer>();
    for (const auto& [name, value] : variables) next_->environment.insert(name, value);
    return *next_;
  }

  static bool hasLibrary(const RunningPlayer& program) {
    return !screen::isX11() ||
           !screen::windowOf(program.processId(), QStringLiteral("^Tromelo$")).isEmpty();
  }

 private:
  std::unique_ptr<RunningPlayer> next_;
};

TEST_F(MissingParts, WithoutThemItPlaysOnAndSaysSo) {
  const QString file = player.homePath() + QStringLiteral("/file");
  ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
  const struct {
    const char* what;
    Variables variables;
    const char* error;  // in the window
    const char* line;   // on stderr
  } rows[] = {
      {"sound", kNoSound, "No sound device was found; ", ""},
      {"OpenGL", kNoOpenGl, "", ""},
      {"a folder for the log",
       {{QStringLiteral("XDG_STATE_HOME"), file}},
       "",
       "The log of playback can't be written; "},
      {"a folder for settings",
       {{QStringLiteral("XDG_CONFIG_HOME"), file}},
       "",
       "Your settings can't be saved in "},
      {"a session bus",
       {{QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/no/bus")}},
       "",
       ""},
      {"a runtime folder", {{QStringLiteral("XDG_RUNTIME_DIR"), file}}, "", ""},
  };
  for (const auto& row : rows) {
    if (row.variables.contains(QStringLiteral("XDG_RUNTIME_DIR")) && !screen::isX11()) continue;
    RunningPlayer& program = restart(row.variables);
    program.start({clip("sample.mp4")});
    EXPECT_TRUE(program.waitUntilPlaying()) << row.what;
    EXPECT_TRUE(program.waitUntil([&] {
      return program.said(QStringLiteral("error")).startsWith(QLatin1String(row.error));
    })) << row.what;
    EXPECT_TRUE(screen::waitForShot(QStringLiteral("without-%1").arg(QLatin1String(row.what)),
                                    showsTestPicture))
        << row.what;
    EXPECT_EQ(program.quit(), 0) << row.what;
    EXPECT_TRUE(program.errors().contains(row.line)) << row.what;
  }
}

TEST_F(MissingParts, WithoutOpenGlTheLibraryOpensAndSaysSo) {
  RunningPlayer& program = restart(kNoOpenGl);
  program.start();
  EXPECT_TRUE(program.waitUntil([&] {
    return program.said(QStringLiteral("error")).startsWith(u"OpenGL doesn't work here") &&
           hasLibrary(program);
  }));
  EXPECT_EQ(program.quit(), 0);
}

TEST_F(MissingParts, WithoutVulkanItSaysWhatToInstallAndTheSoundPlays) {
  RunningPlayer& program = restart(kNoVulkan);
  const QString advice = QStringLiteral(
      "No Vulkan driver was found; install one for your graphics "
      "card (mesa-vulkan-drivers) to play videos.");
  program.start({clip("black.mp4")});
  EXPECT_TRUE(
      program.waitFor(QStringLiteral("error"), QStringLiteral("Could not play black: ") + advice));
  EngineProbe engine(program.ipcPath());
  engine.set(QStringLiteral("ao"), QStringLiteral("null"));  // the machine may have no sound
  engine.command({QStringLiteral("loadfile"), clip("sample.mp4")});
  EXPECT_TRUE(program.waitFor(QStringLiteral("error"), advice));
  EXPECT_TRUE(program.waitFor(QStringLiteral("status"), QStringLiteral("Playing")));
  EXPECT_EQ(program.said(QStringLiteral("window")), QStringLiteral("none"));
  EXPECT_TRUE(program.waitUntil([&] { return hasLibrary(program); }));
  EXPECT_EQ(program.quit(), 0);
}

TEST_F(MissingParts, WithoutAnEngineTheLibraryOpensAndSaysWhy) {
  const struct {
    const char* part;
    const char* error;
  } rows[] = {
      {"no libmpv", "The playback library libmpv was not found; install it (libmpv2)"},
      {"old libmpv", "The playback library libmpv is too old; install version 0.38 or newer"},
      {"folder",
       "Videos can't be shown: no folder could be made for the private display (Read-only"},
      {"wlroots", "Videos can't be shown: the private display did not start; install"},
  };
  for (const auto& row : rows) {
    RunningPlayer& program = restart(broken(row.part));
    program.start({clip("sample.mp4")});
    EXPECT_TRUE(program.waitUntil([&] {
      return program.said(QStringLiteral("error")).startsWith(QLatin1String(row.error)) &&
             hasLibrary(program);
    })) << row.part;
    EXPECT_EQ(program.said(QStringLiteral("window")), QStringLiteral("none")) << row.part;
    if (screen::isX11()) {
      screen::press(QStringLiteral("ctrl+comma"));
      EXPECT_TRUE(program.waitUntil([&] {
        return !screen::windowOf(program.processId(), QStringLiteral("^Settings")).isEmpty();
      })) << row.part;
    }
    EXPECT_EQ(program.quit(), 0) << row.part;
  }
}

}  // namespace
}  // namespace tromelo::testing
