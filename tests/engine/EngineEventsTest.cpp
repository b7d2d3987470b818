#include <gtest/gtest.h>

#include <array>
#include <thread>
#include <utility>

#include "engine/MpvEngine.h"
#include "engine/WakeupTarget.h"
#include "support/FakeMpv.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

struct EngineEvents : ::testing::Test {
  FakeMpv mpv;
  std::unique_ptr<MpvEngine> engine = std::make_unique<MpvEngine>(mpv.api());
  std::vector<MpvEvent> received;

  void SetUp() override {
    engine->initialize("/diagnostics");
    engine->onEvent = [this](const MpvEvent& event) { received.push_back(event); };
  }
};

TEST_F(EngineEvents, OneWakeupFromAnotherThreadDeliversAllThatWaits) {
  for (int i = 0; i < 3; ++i) mpv.queue(MPV_EVENT_START_FILE);
  mpv.queue(MPV_EVENT_SEEK);
  mpv.queue(MPV_EVENT_FILE_LOADED);
  std::thread([this] { mpv.wake(); }).join();
  EXPECT_TRUE(received.empty());
  ASSERT_TRUE(waitFor([this] { return received.size() == 4; }));
  EXPECT_EQ(received.back(), MpvEvent(event::FileLoaded{}));
}

TEST_F(EngineEvents, AnEventThatComesJustAfterTheLastWasTakenIsNotLost) {
  MpvClientApi api = mpv.api();
  bool late = false;
  api.waitEvent = [&, wait = api.waitEvent](mpv_handle* handle, double timeout) {
    mpv_event* event = wait(handle, timeout);
    if (event->event_id == MPV_EVENT_NONE && !std::exchange(late, true)) {
      mpv.queue(MPV_EVENT_FILE_LOADED);
      mpv.wake();
    }
    return event;
  };
  MpvEngine other(api);
  other.initialize("/diagnostics");
  other.onEvent = engine->onEvent;
  mpv.queue(MPV_EVENT_START_FILE);
  mpv.wake();
  EXPECT_TRUE(waitFor([this] { return received.size() == 2; }));
}

TEST_F(EngineEvents, InQuietWhatChangesWithEveryFrameComesWithTheRest) {
  std::array seconds{1.0, 2.0, 3.0, 4.0};
  std::array<mpv_event_property, 4> changes{};
  const auto moveTo = [&](std::size_t index) {
    changes[index] = {"time-pos", MPV_FORMAT_DOUBLE, &seconds[index]};
    mpv.queue(MPV_EVENT_PROPERTY_CHANGE, &changes[index], std::uint64_t(MpvProperty::timePos));
  };
  const auto hears = [&](const std::vector<MpvEvent>& expected) {
    const bool came = waitFor([&] { return received.size() >= expected.size(); });
    return came && std::exchange(received, {}) == expected;
  };
  const auto at = [&](std::size_t index) {
    return MpvEvent(event::Property{MpvProperty::timePos, seconds[index]});
  };
  int stops = 0;
  engine->onEvent = [&, hear = engine->onEvent](const MpvEvent& event) {
    event == MpvEvent(event::FramesStopped{}) ? void(++stops) : hear(event);
  };
  engine->setQuiet(true);
  moveTo(0);
  moveTo(1);
  mpv.queue(MPV_EVENT_PLAYBACK_RESTART);
  mpv.wake();
  EXPECT_TRUE(hears({at(1), event::PlaybackRestart{}}));
  moveTo(2);  // where it has jumped to
  mpv.wake();
  EXPECT_TRUE(hears({at(2)}));
  moveTo(3);
  mpv.wake();
  EXPECT_TRUE(waitFor([&] {
    engine->catchUp();
    return !received.empty();
  }));
  EXPECT_TRUE(hears({at(3)}));
  EXPECT_TRUE(waitFor([&] { return stops > 0; }));
  moveTo(0);
  engine->setQuiet(false);
  EXPECT_TRUE(hears({at(0)}));
}

TEST_F(EngineEvents, NothingArrivesOnceTheHandlerHasEndedTheEngine) {
  bool completed = false;
  engine->onEvent = [&](const MpvEvent& event) {
    received.push_back(event);
    engine->terminate([&completed] { completed = true; });
  };
  for (int i = 0; i < 3; ++i) mpv.queue(MPV_EVENT_START_FILE);
  mpv.wake();
  ASSERT_TRUE(waitFor([&completed] { return completed; }));
  EXPECT_EQ(received.size(), 1u);
  EXPECT_EQ(mpv.queuedEvents(), 2u);
  engine->drainEvents();
  engine->command({"stop"});
  EXPECT_EQ(received.size(), 1u);
  EXPECT_TRUE(mpv.requests.empty());
  EXPECT_EQ(mpv.destroyed, 1);
}

TEST_F(EngineEvents, AWakeupOnItsWayFindsNoEngine) {
  mpv.queue(MPV_EVENT_START_FILE);
  mpv.wake();
  engine.reset();
  settle();
  mpv.wake();
  WakeupTarget::wakeup(nullptr);
  settle();
  EXPECT_TRUE(received.empty());
  EXPECT_EQ(mpv.queuedEvents(), 1u);
}

TEST_F(EngineEvents, RequestsKeepTheirOrderAndTheirWords) {
  engine->command({"loadfile", "/a,b \"c\"\n\xff", "replace", "-1", ""});
  engine->setProperty("pause", "no");
  const std::vector<std::vector<std::string>> expected{
      {"loadfile", "/a,b \"c\"\n\xff", "replace", "-1", ""}, {"set", "pause", "no"}};
  EXPECT_EQ(mpv.requests, expected);
}

TEST_F(EngineEvents, RequestsBeyondTheEnginesRoomWaitForIt) {
  mpv.room = 2;
  for (int i = 0; i < 4; ++i) engine->command({"loadfile", std::to_string(i)});
  engine->setProperty("pause", "yes");
  EXPECT_EQ(mpv.requests.size(), 2u);
  mpv.room = 1;
  engine->drainEvents();
  EXPECT_EQ(mpv.requests.size(), 3u);
  mpv.room = 10;
  engine->drainEvents();
  ASSERT_EQ(mpv.requests.size(), 5u);
  EXPECT_EQ(mpv.requests[3][1], "3");
  EXPECT_EQ(mpv.requests[4][1], "pause");
}

TEST_F(EngineEvents, ThousandsOfRequestsLeaveTheEngineRoomForItsEvents) {
  constexpr std::size_t kRequests = 5000;
  constexpr std::size_t kEnginesRoom = 1000;  // libmpv's, for replies and events
  mpv.room = kRequests;
  mpv.hangs = true;
  for (std::size_t i = 0; i < kRequests; ++i) engine->command({"loadfile", std::to_string(i)});
  for (std::size_t answered = 0; answered < kRequests; engine->drainEvents()) {
    ASSERT_GT(mpv.requests.size(), answered) << "nothing more is asked";
    EXPECT_LT(mpv.requests.size() - answered, kEnginesRoom - 100);
    for (; answered < mpv.requests.size(); ++answered) mpv.queue(MPV_EVENT_COMMAND_REPLY);
  }
  EXPECT_EQ(mpv.requests.back()[1], std::to_string(kRequests - 1));
}

TEST_F(EngineEvents, ACommandThatIsRefusedOnTheSpotFailsLater) {
  mpv.refusal = MPV_ERROR_INVALID_PARAMETER;
  engine->command({"no-such-command"});
  engine->setProperty("pause", "perhaps");
  EXPECT_TRUE(received.empty());
  ASSERT_TRUE(waitFor([this] { return !received.empty(); }));
  settle();
  EXPECT_EQ(
      received,
      (std::vector<MpvEvent>{event::CommandFailed{mpv_error_string(MPV_ERROR_INVALID_PARAMETER)}}));
}

TEST_F(EngineEvents, AnOutcomeIsToldToItsSenderAlone) {
  std::vector<std::optional<std::string>> outcomes;
  const auto note = [&](const std::optional<std::string>& error) { outcomes.push_back(error); };
  engine->command({"screenshot-to-file", "/a.png"}, note);
  mpv.refusal = MPV_ERROR_INVALID_PARAMETER;
  engine->command({"no-such-command"}, note);
  mpv.queue(MPV_EVENT_COMMAND_REPLY, nullptr, 1);
  ASSERT_TRUE(waitFor([&] { return outcomes.size() == 2; }));
  EXPECT_EQ(outcomes[0], mpv_error_string(MPV_ERROR_INVALID_PARAMETER));
  EXPECT_EQ(outcomes[1], std::nullopt);
  EXPECT_TRUE(received.empty());
}

}  // namespace tromelo::testing
