#pragma once

#include <iostream>
#include <random>

#include "EndToEnd.h"
#include "MainThreadGaps.h"

namespace tromelo::testing {

/// What the environment says, or the other.
inline unsigned number(const char* variable, unsigned otherwise) {
  bool isNumber = false;
  const unsigned value = qEnvironmentVariable(variable).toUInt(&isNumber);
  return isNumber ? value : otherwise;
}

/// The real program, used for long. X11.
class ReliabilityTest : public EndToEnd {
 protected:
  void SetUp() override {
    if (!screen::isX11()) GTEST_SKIP() << "no one types on the headless Wayland host";
    player.environment.insert("LD_PRELOAD", TROMELO_PRELOADED);
    player.environment.insert("TROMELO_GAPS", gaps.path());
    std::cout << "Again with TROMELO_SEED=" << seed << std::endl;
  }
  [[nodiscard]] bool starts(const QStringList& arguments = {}) {
    player.start(arguments);
    return player.waitUntil([this] { return !player.said("status").isEmpty(); });
  }
  void TearDown() override {
    EXPECT_TRUE(!player.isRunning() || player.quit() == 0);
    for (const char* report : {"Sanitizer", "runtime error:"})
      EXPECT_FALSE(player.errors().contains(report)) << player.errors().toStdString();
  }

  const unsigned seed = number("TROMELO_SEED", std::random_device()());
  MainThreadGaps gaps;
};

}  // namespace tromelo::testing
