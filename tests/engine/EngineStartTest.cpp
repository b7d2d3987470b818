#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <clocale>
#include <thread>

#include "engine/EngineEnvironment.h"
#include "engine/MpvEngine.h"
#include "support/FakeMpv.h"
#include "support/Files.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

struct EngineStart : ::testing::Test {
  FakeMpv mpv;
  MpvEngine engine{mpv.api()};

  std::optional<std::string> start() { return engine.initialize("/diagnostics"); }
  using Options = decltype(FakeMpv::options);
  /// What an engine sets that refuses nothing.
  static Options all() {
    FakeMpv willing;
    MpvEngine other(willing.api());
    other.initialize("/diagnostics");
    return willing.options;
  }
};

TEST_F(EngineStart, SetsItsOptionsAndObservesEveryProperty) {
  EXPECT_EQ(start(), std::nullopt);
  EXPECT_TRUE(engine.hasHandle());
  EXPECT_EQ(mpv.options.front(), (Options::value_type{"vo", "gpu-next"}));
  EXPECT_EQ(
      std::ranges::count(mpv.options, Options::value_type{"log-file", "/diagnostics/mpv.log"}), 1);
  EXPECT_EQ(mpv.logLevel, "warn");
  EXPECT_EQ(mpv.observed.size(), allMpvProperties().size());
  EXPECT_EQ(mpv.observed.front(), std::tuple(1U, "media-title", MPV_FORMAT_STRING));
}

TEST_F(EngineStart, ASecondStartDoesNothing) {
  start();
  EXPECT_EQ(start(), std::nullopt);
  EXPECT_EQ(mpv.created, 1);
  EXPECT_EQ(mpv.options, all());
}

TEST_F(EngineStart, TheLogOfAnEngineThatIsReplacedIsKept) {
  const QTemporaryDir logs;
  engine.initialize(logs.path());
  QFile log(logs.filePath("mpv.log"));
  EXPECT_TRUE(log.open(QFile::WriteOnly) && log.write("it hangs"));
  log.close();
  engine.terminate([] {});
  engine.initialize(logs.path());
  EXPECT_EQ(readFile(logs.filePath("mpv.log.1")), "it hangs");
  EXPECT_TRUE(waitFor([&] { return !engine.isDestroying(); }));
}

TEST_F(EngineStart, AFailureIsOneLineAndLeavesNoHandle) {
  const std::string notFound = mpv_error_string(MPV_ERROR_OPTION_NOT_FOUND);
  for (
      const auto& [what, fault, message] :
      Table<const char*, std::function<void(FakeMpv&)>, std::string>{
          {"no engine", [](FakeMpv& m) { m.cannotBeCreated = true; },
           "Could not create the playback engine"},
          {"no library", [](FakeMpv& m) { m.version = 0; },
           "The playback library libmpv was not found; install it (libmpv2) to play videos."},
          {"an old library", [](FakeMpv& m) { m.version = 0x20002; },
           "The playback library libmpv is too old; install version 0.38 or newer to play videos."},
          {"unknown option", [](FakeMpv& m) { m.optionResults["vo"] = MPV_ERROR_OPTION_NOT_FOUND; },
           "vo: " + notFound},
          {"refused value", [](FakeMpv& m) { m.optionResults["ytdl"] = MPV_ERROR_OPTION_FORMAT; },
           std::string("ytdl: ") + mpv_error_string(MPV_ERROR_OPTION_FORMAT)},
          {"no initialisation", [](FakeMpv& m) { m.initializeResult = MPV_ERROR_NOMEM; },
           mpv_error_string(MPV_ERROR_NOMEM)},
          {"a code without words", [](FakeMpv& m) { m.initializeResult = -4711; },
           "Playback engine error (-4711)"},
      }) {
    FakeMpv faulty;
    fault(faulty);
    MpvEngine failing(faulty.api());
    EXPECT_EQ(failing.initialize("/diagnostics"), message) << what;
    EXPECT_FALSE(failing.hasHandle()) << what;
    EXPECT_EQ(faulty.destroyed, faulty.created) << what;
    failing.command({"stop"});
    failing.setProperty("pause", "no");
    EXPECT_TRUE(faulty.requests.empty()) << what;
  }
}

TEST_F(EngineStart, OptionsThatALibraryMayLackAreNoFailure) {
  for (const char* option : {"osc", "ytdl", "gpu-sw", "clipboard-backends"}) {
    mpv.optionResults[option] = MPV_ERROR_OPTION_NOT_FOUND;
  }
  EXPECT_EQ(start(), std::nullopt);
  EXPECT_EQ(mpv.options, all());
}

TEST_F(EngineStart, DrawsWithTheDeviceOfTheSceneWhereThatCanBe) {
  mpv.optionResults["vulkan-device"] = MPV_ERROR_OPTION_ERROR;
  EXPECT_EQ(engine.initialize("/diagnostics", "some-uuid"), std::nullopt);
  EXPECT_EQ(mpv.options.back(),
            (std::pair<std::string, std::string>("vulkan-device", "some-uuid")));
}

TEST_F(EngineStart, TheDiagnosticSocketIsThePersonsChoice) {
  qputenv("TROMELO_IPC", "/socket");
  start();
  qunsetenv("TROMELO_IPC");
  Options expected = all();
  expected.emplace_back("input-ipc-server", "/socket");
  EXPECT_EQ(mpv.options, expected);
}

TEST_F(EngineStart, WithoutAHandleTerminationCompletesAtOnce) {
  bool completed = false;
  engine.terminate([&completed] { completed = true; });
  EXPECT_TRUE(completed);
  EXPECT_EQ(mpv.destroyed, 0);
}

TEST_F(EngineStart, NothingButTerminationDestroysTheHandle) {
  {
    MpvEngine other(mpv.api());
    other.initialize("/diagnostics");
  }
  EXPECT_EQ(mpv.destroyed, 0);
  start();
  bool completed = false;
  engine.terminate([&completed] { completed = true; });
  EXPECT_FALSE(engine.hasHandle());
  EXPECT_FALSE(completed);
  EXPECT_TRUE(waitFor([&completed] { return completed; }));
  EXPECT_EQ(mpv.destroyed, 1);
  EXPECT_NE(mpv.destroyedBy, std::this_thread::get_id()) << "which would wait for the engine";
}

TEST(EngineEnvironment, TheShippedDriverYieldsToThePersonsChoice) {
  qunsetenv("VK_DRIVER_FILES");
  qunsetenv("MPVBUNDLE");
  prepareEngineEnvironment({});
  EXPECT_FALSE(qEnvironmentVariableIsSet("VK_DRIVER_FILES"));
  EXPECT_EQ(qgetenv("MPVBUNDLE"), "true");
  prepareEngineEnvironment("/shipped.json");
  EXPECT_EQ(qgetenv("VK_DRIVER_FILES"), "/shipped.json");
  prepareEngineEnvironment("/other.json");
  EXPECT_EQ(qgetenv("VK_DRIVER_FILES"), "/shipped.json");
  qunsetenv("VK_DRIVER_FILES");
}

TEST(EngineEnvironment, FindsTheDriverInTheDataDirectories) {
  EXPECT_EQ(shippedVulkanManifest(), QString());
  const QString manifest =
      qEnvironmentVariable("XDG_DATA_HOME") + "/tromelo/vulkan/icd.d/tromelo_icd.json";
  writeFile(manifest);
  EXPECT_EQ(shippedVulkanManifest(), manifest);
  QFile::remove(manifest);
}

TEST(EngineEnvironment, NumbersAreReadWithAPoint) {
  std::setlocale(LC_NUMERIC, "");
  prepareEngineEnvironment({});
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

}  // namespace tromelo::testing
