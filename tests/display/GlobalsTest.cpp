// What the display tells the engine of itself.
#include "DisplayTest.h"
#include "display/PixelFormat.h"
#include "display/VulkanDevices.h"

namespace tromelo::testing {
namespace {

using GlobalsTest = DisplayTest;

TEST_F(GlobalsTest, AnnouncesWhatIsImplementedAndNothingElse) {
  std::set<std::string> names;
  for (const auto& [name, version] : client_->globals()) names.insert(name);
  // No wp_fifo_manager_v1: with it the engine waits for ever while it is hidden. No dmabuf without
  // a device.
  EXPECT_EQ(names, (std::set<std::string>{"wl_compositor", "wl_output", "wl_seat", "wl_shm",
                                          "wl_subcompositor", "wp_presentation", "wp_viewporter",
                                          "xdg_wm_base"}));
  EXPECT_EQ(client_->globals().at("xdg_wm_base"), 6u);  // with "suspended"
  const std::multiset<std::uint32_t> formats(client_->shmFormats().begin(),
                                             client_->shmFormats().end());
  EXPECT_EQ(formats,
            (std::multiset<std::uint32_t>{WL_SHM_FORMAT_ARGB8888, WL_SHM_FORMAT_XRGB8888,
                                          WL_SHM_FORMAT_ABGR8888, WL_SHM_FORMAT_XBGR8888}));
}

TEST_F(GlobalsTest, TheScreenIsTheHosts) {
  EXPECT_EQ(client_->screen().size, QSize(1280, 800));
  EXPECT_EQ(client_->screen().refresh, 60'000);
  EXPECT_EQ(client_->screen().scale, 1);

  display_->setOutput({QSize(3840, 2160), 143'856});
  EXPECT_TRUE(wait([&] { return client_->screen().size == QSize(3840, 2160); }));
  EXPECT_EQ(client_->screen().refresh, 143'856);
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

TEST_F(GlobalsTest, TheSeatHasNothingToPressOrPoint) { EXPECT_EQ(client_->seatCapabilities(), 0u); }

}  // namespace
}  // namespace tromelo::testing
