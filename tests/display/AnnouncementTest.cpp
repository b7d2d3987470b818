// What the display tells of itself, and to whom.
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>

#include "DisplayTest.h"
#include "display/PixelFormat.h"
#include "display/ProbeClient.h"
#include "display/VulkanDevices.h"

namespace tromelo::testing {

using AnnouncementTest = DisplayTest;

TEST_F(AnnouncementTest, IsWhatIsImplementedAndNothingElse) {
  const auto facts = probeDisplay(display_->socketPath());
  ASSERT_TRUE(facts);
  // No wp_fifo_manager_v1: with it the engine waits for ever while it is hidden. No dmabuf without
  // a device. The shell's is the version with "suspended".
  const std::map<std::string, std::uint32_t> globals(facts->globals.begin(), facts->globals.end());
  std::set<std::string> names;
  for (const auto& [name, version] : globals) names.insert(name);
  EXPECT_EQ(names, (std::set<std::string>{"wl_compositor", "wl_output", "wl_seat", "wl_shm",
                                          "wl_subcompositor", "wp_presentation", "wp_viewporter",
                                          "xdg_wm_base"}));
  EXPECT_EQ(globals.at("xdg_wm_base"), 6u);
}

TEST_F(AnnouncementTest, TheScreenIsTheHosts) {
  const auto tells = [this](const PrivateDisplay::Output& output) {
    const auto facts = probeDisplay(display_->socketPath());
    return facts && facts->screen == output.size &&
           facts->refreshMillihertz == output.refreshMillihertz;
  };
  EXPECT_TRUE(tells(output()));
  const PrivateDisplay::Output another{QSize(3840, 2160), 143'856};
  display_->setOutput(another);
  EXPECT_TRUE(wait([&] { return tells(another); }));
}

/// In a child process: 0 when the display hangs up on it, 1 when it is let in, 2 when it can't even
/// try. Only what is safe after a fork.
int knock(const sockaddr_un& address) {
  const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
  if (connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) return 2;
  // wl_display.get_registry, which a display answers at once.
  const std::uint32_t request[] = {1, 12u << 16 | 1, 2};
  [[maybe_unused]] const ssize_t sent = send(fd, request, sizeof request, MSG_NOSIGNAL);
  pollfd readable{fd, POLLIN, 0};
  if (poll(&readable, 1, 30'000) <= 0) return 2;
  char byte = 0;
  return recv(fd, &byte, 1, 0) == 1 ? 1 : 0;
}

TEST_F(AnnouncementTest, IsForThisProcessAlone) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::strcpy(address.sun_path, display_->socketPath().constData());
  const pid_t child = fork();
  if (child == 0) _exit(knock(address));
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_TRUE(client_->roundtrip());
}

TEST(AnnouncedModifiers, AreThoseThatTheSceneCanSampleAndLinearOnes) {
  constexpr std::uint64_t tiled = 0x0100000000000001;
  constexpr std::uint64_t compressed = 0x0100000000000004;
  const struct {
    const char* name;
    std::vector<DmabufSupport::ListedModifier> listed;
    std::vector<std::uint64_t> announced;
  } rows[] = {
      {"a driver older than modifiers", {}, {kImplicitModifier, kLinearModifier}},
      {"linear isn't listed", {{tiled}}, {tiled, kLinearModifier}},
      {"linear is listed", {{kLinearModifier}, {tiled}}, {kLinearModifier, tiled}},
      {"some are external-only", {{tiled}, {compressed, true}}, {tiled, kLinearModifier}},
      {"linear is external-only", {{tiled}, {kLinearModifier, true}}, {tiled}},
      {"all are external-only", {{tiled, true}, {compressed, true}}, {}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(DmabufSupport::announced(row.listed), row.announced) << row.name;
}

TEST(EngineDevice, IsTheOneThatDrawsTheScene) {
  const std::vector<VulkanDevice> devices{{"integrated", "uuid-1", {100, 101}},
                                          {"dedicated", "uuid-2", {102}},
                                          {"software", "uuid-3", {}}};
  EXPECT_EQ(vulkanUuidOf(101, devices), "uuid-1");
  EXPECT_EQ(vulkanUuidOf(102, devices), "uuid-2");
  EXPECT_EQ(vulkanUuidOf(103, devices), "");
}

}  // namespace tromelo::testing
