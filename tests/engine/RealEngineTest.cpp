#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <clocale>

#include "engine/MpvEngine.h"
#include "support/Clips.h"
#include "support/HeadlessMpv.h"
#include "support/WaitFor.h"

namespace tromelo {

namespace {

using testing::waitFor;

struct RealEngine : ::testing::Test {
  QTemporaryDir directory;
  MpvEngine engine{testing::headlessMpv()};
  std::vector<MpvEvent> received;
  MpvValue playlist;

  void SetUp() override {
    // The person's locale may write numbers with a comma, which libmpv doesn't start with.
    std::setlocale(LC_ALL, "C.UTF-8");
    engine.onEvent = [this](const MpvEvent& event) {
      const auto* change = std::get_if<event::Property>(&event);
      if (change && change->property == MpvProperty::playlist) playlist = change->value;
      if (!change) received.push_back(event);
    };
    ASSERT_EQ(engine.initialize(directory.path()), std::nullopt);
  }

  void TearDown() override {
    bool ended = false;
    engine.terminate([&ended] { ended = true; });
    EXPECT_TRUE(waitFor([&ended] { return ended; }));
  }

  bool has(const MpvEvent& event) const { return std::ranges::count(received, event) > 0; }
};

}  // namespace

TEST_F(RealEngine, PlaysAFileFromLoadToEnd) {
  engine.command({"loadfile", testing::clipPath("short-wide.mp4")});
  ASSERT_TRUE(waitFor([this] { return has(event::PlaybackRestart{}); }));
  // The first can come before it comes to rest at all.
  std::erase(received, MpvEvent(event::Idle{}));
  std::erase(received, MpvEvent(event::VideoReconfigured{}));
  EXPECT_EQ(received, (std::vector<MpvEvent>{event::FileQueued{1}, event::StartFile{1},
                                             event::FileLoaded{}, event::PlaybackRestart{}}));
  received.clear();
  engine.command({"stop"});
  EXPECT_TRUE(waitFor([this] { return has(event::Idle{}); }));
  EXPECT_TRUE(has(event::EndFile{.error = {}, .entry = 1}));
}

TEST_F(RealEngine, ReportsAFailedCommandOnceAndAFailedWriteNever) {
  engine.setProperty("pause", "perhaps");
  engine.setProperty("no-such-property", "1");
  const auto failures = [this] {
    return std::ranges::count_if(received, [](const MpvEvent& event) {
      return std::holds_alternative<event::CommandFailed>(event);
    });
  };
  engine.command({"sub-add", "/no/such/file"});
  ASSERT_TRUE(waitFor([&] { return failures() == 1; }));
  engine.command({"seek", "nonsense"});
  EXPECT_TRUE(waitFor([&] { return failures() == 2; }));
}

TEST_F(RealEngine, LosesNoRequestOfThousands) {
  constexpr std::size_t kFiles = 3000;
  for (std::size_t i = 0; i < kFiles; ++i) {
    engine.command({"loadfile", "/no/such/file/" + std::to_string(i), "append", "-1", ""});
  }
  ASSERT_TRUE(waitFor([this] { return playlist.list().size() == kFiles; }));
  const auto* last = mpvEntry<std::string>(*playlist.list().back(), "filename");
  ASSERT_TRUE(last);
  EXPECT_EQ(*last, "/no/such/file/" + std::to_string(kFiles - 1));
}

}  // namespace tromelo
