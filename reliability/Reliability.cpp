#include <algorithm>
#include <iostream>
#include <vector>

#include "EndToEnd.h"
#include "RandomUse.h"

namespace tromelo::testing {
namespace {

// What the use of a program that leaks nothing varies by. Software Vulkan's threads allocate a lot.
constexpr qint64 kMemorySlack = 64 * 1024;           // kB
constexpr qint64 kFewFilesMemorySlack = 256 * 1024;  // they have just begun to
constexpr int kDescriptorSlack = 4;
constexpr int kThreadSlack = 4;
constexpr std::chrono::seconds kLongestClosing(2);

constexpr int kSettling = 50;  // steps, until everything has been loaded that is loaded once

unsigned number(const char* variable, unsigned otherwise) {
  bool isNumber = false;
  const unsigned value = qEnvironmentVariable(variable).toUInt(&isNumber);
  return isNumber ? value : otherwise;
}

std::ostream& operator<<(std::ostream& out, const ProcessUse& use) {
  return out << use.memory << " kB, " << use.descriptors << " descriptors, " << use.threads
             << " threads";
}

/// Each value's own median.
ProcessUse median(std::span<const ProcessUse> uses) {
  const auto middle = [uses](auto member) {
    std::vector<std::decay_t<decltype(uses.front().*member)>> values;
    for (const ProcessUse& use : uses) values.push_back(use.*member);
    std::ranges::sort(values);
    return values.at(values.size() / 2);
  };
  return {middle(&ProcessUse::memory), middle(&ProcessUse::descriptors),
          middle(&ProcessUse::threads)};
}

void expectLevel(const std::vector<ProcessUse>& uses, qint64 memorySlack) {
  ASSERT_GE(uses.size(), 4U) << "too few returns to the library to tell";
  const std::span all(uses);
  const auto before = median(all.first(all.size() / 4));
  const auto after = median(all.last(all.size() / 4));
  std::cout << "At rest early: " << before << "\nAt rest late:  " << after << '\n';
  EXPECT_LE(after.memory, before.memory + memorySlack);
  EXPECT_LE(after.descriptors, before.descriptors + kDescriptorSlack);
  EXPECT_LE(after.threads, before.threads + kThreadSlack);
}

class Reliability : public EndToEnd {
 protected:
  void SetUp() override {
    if (!screen::isX11()) GTEST_SKIP() << "no one types on the headless Wayland host";
#ifdef __SANITIZE_ADDRESS__
    player.environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(TROMELO_KEPT_LIBRARIES));
#endif
    player.start();
    ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Open a video to begin")));
  }

  void TearDown() override {
    EXPECT_EQ(player.quit(), 0);
    for (const char* report : {"Sanitizer", "runtime error:"})
      EXPECT_FALSE(player.errors().contains(report)) << player.errors().toStdString();
  }
};

TEST_F(Reliability, HoldsUnderRandomUse) {
  const unsigned steps = number("TROMELO_STEPS", 500);
  const unsigned seed = number("TROMELO_SEED", std::random_device()());
  std::cout << steps << " steps; again with TROMELO_SEED=" << seed << std::endl;
  RandomUse use(player, seed);
  std::vector<ProcessUse> uses;
  std::chrono::milliseconds longest(0);
  std::string trail;
  for (unsigned i = 0; i < steps; ++i) {
    const auto step = use.step();
    trail += "\n  " + step.name;
    ASSERT_TRUE(player.isRunning() && step.isDone)
        << "step " << i << " of seed " << seed << trail << '\n'
        << player.errors().toStdString();
    longest = std::max(longest, step.closing.value_or(longest));
    if (step.use && i >= kSettling) uses.push_back(*step.use);
  }
  std::cout << "Longest way to the library: " << longest.count() << " ms\n";
  EXPECT_LE(longest, kLongestClosing);
  expectLevel(uses, kMemorySlack);
}

TEST_F(Reliability, FiftyFilesLeaveNothingBehind) {
  RandomUse use(player, 1);
  std::vector<ProcessUse> uses;
  for (int i = 0; i < 50; ++i) {
    ASSERT_TRUE(use.openAndWait().isDone) << i;
    const auto closed = use.close();
    ASSERT_TRUE(closed.isDone) << i;
    if (i >= 10) uses.push_back(*closed.use);
  }
  expectLevel(uses, kFewFilesMemorySlack);
}

}  // namespace
}  // namespace tromelo::testing
