#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <algorithm>
#include <iostream>
#include <vector>

#include "Curve.h"
#include "RandomUse.h"
#include "ReliabilityTest.h"

namespace tromelo::testing {
namespace {

// What the use of a program that leaks nothing varies by. Software Vulkan's threads allocate a lot.
constexpr qint64 kMemorySlack = 64 * 1024;           // kB
constexpr qint64 kFewFilesMemorySlack = 256 * 1024;  // they have just begun to
constexpr int kDescriptorSlack = 4;
constexpr int kThreadSlack = 4;
constexpr std::chrono::seconds kLongestClosing(2);

constexpr double kMemoryGrowth = 0.03;  // from the 50th film on
constexpr std::chrono::seconds kBetweenSamples(2);

constexpr qsizetype kTold = 4000;  // bytes of what a failed program said last

constexpr int kSettling = 50;  // steps, until everything has been loaded that is loaded once

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

class Reliability : public ReliabilityTest {
 protected:
  void SetUp() override {
    ReliabilityTest::SetUp();
    sound.start();
    ASSERT_TRUE(starts());
    since_.start();
  }

  double minutes() const { return double(since_.elapsed()) / 60'000; }

  void sample() {
    if (!lastSample_.isValid() || lastSample_.durationElapsed() >= kBetweenSamples) {
      lastSample_.start();
      samples_.push_back({minutes(), ProcessUse::of(player.processId()), gaps.takeLongest()});
    }
  }

  /// What somebody would see who looked at it.
  static void keepSight() {
    const QString picture = qEnvironmentVariable("TROMELO_CURVE");
    if (!picture.isEmpty()) screen::shot().save(QFileInfo(picture).dir().filePath("failed.png"));
  }

  void tellGaps() const {
    const auto worst =
        std::ranges::max(samples_, {}, [](const Sample& one) { return one.gap.wait; });
    std::cout << "Longest gap of the main thread: " << double(worst.gap.wait.count()) / 1000
              << " ms, it computed for " << double(worst.gap.busy.count()) / 1000
              << " ms of them\n";
  }

  SoundServer sound{player};
  std::vector<Sample> samples_;

 private:
  QElapsedTimer since_;
  QElapsedTimer lastSample_;
};

/// For so many steps or, where that is said, so many minutes.
TEST_F(Reliability, HoldsUnderRandomUse) {
  const unsigned steps = number("TROMELO_STEPS", 500);
  const unsigned limit = number("TROMELO_MINUTES", 0);
  RandomUse use(player, sound, seed);
  std::vector<ProcessUse> uses;
  std::chrono::milliseconds longest(0);
  std::string trail;
  unsigned i = 0;
  for (; limit > 0 ? minutes() < limit : i < steps; ++i) {
    const auto step = use.step();
    sample();
    trail += "\n  " + step.name;
    if (!step.isDone) keepSight();
    ASSERT_TRUE(player.isRunning() && step.isDone)
        << "step " << i << " of seed " << seed << trail << '\n'
        << player.errors().right(kTold).toStdString() << use.engineState();
    longest = std::max(longest, step.closing.value_or(longest));
    if (step.use && i >= kSettling) uses.push_back(*step.use);
  }
  std::cout << i << " steps in " << minutes() << " minutes\n";
  std::cout << "Engines that hung and were replaced: " << use.replaced() << '\n';
  std::cout << "Longest way to the library: " << longest.count() << " ms\n";
  tellGaps();
  if (const QString picture = qEnvironmentVariable("TROMELO_CURVE"); !picture.isEmpty())
    drawCurves(samples_, picture);
  EXPECT_LE(longest, kLongestClosing);
  expectLevel(uses, kMemorySlack);
}

TEST_F(Reliability, FilmsInARowLeaveNothingBehind) {
  const unsigned films = number("TROMELO_FILMS", 50);
  RandomUse use(player, sound, 1);
  probe().set("ao", "null");  // a library of sound servers isn't what is weighed here
  std::vector<ProcessUse> uses;
  for (unsigned i = 1; i <= films; ++i) {
    ASSERT_TRUE(use.openAndWait().isDone) << i;
    const auto closed = use.close();
    ASSERT_TRUE(closed.isDone) << i;
    uses.push_back(*closed.use);
    sample();
    if (i % 50 == 0) std::cout << "After " << i << " films: " << uses.back() << std::endl;
  }
  tellGaps();
  if (const QString picture = qEnvironmentVariable("TROMELO_CURVE"); !picture.isEmpty())
    drawCurves(samples_, picture);
  if (films <= kSettling)
    return expectLevel({uses.begin() + uses.size() / 5, uses.end()}, kFewFilesMemorySlack);
  const std::span all(uses);
  const auto before = median(all.subspan(kSettling - 10, 20));
  const auto after = median(all.last(20));
  std::cout << "Memory grew by " << 100 * (double(after.memory) / double(before.memory) - 1)
            << " %\n";
  EXPECT_LE(double(after.memory), double(before.memory) * (1 + kMemoryGrowth));
  expectLevel({uses.begin() + kSettling, uses.end()}, kMemorySlack);
}

}  // namespace
}  // namespace tromelo::testing
