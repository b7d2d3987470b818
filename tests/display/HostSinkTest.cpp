#include "display/HostSubsurfaceSink.h"

#include <gtest/gtest.h>
#include <sys/eventfd.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <QCoreApplication>
#include <algorithm>
#include <future>

#include "DisplayTest.h"
#include "RecordingHost.h"
#include "color-management-v1-client-protocol.h"
#include "display/ColorManagerGlobal.h"
#include "display/Wlroots.h"
#include "linux-dmabuf-v1-client-protocol.h"
#include "linux-drm-syncobj-v1-client-protocol.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using Feature = RecordingHost::Feature;

// By the protocols' order of events.
constexpr std::uint32_t kFirst = 0;
constexpr std::uint32_t kSecond = 1;
constexpr std::uint32_t kPresented = 1;
constexpr std::uint32_t kDiscarded = 2;

const dev_t kDevice = makedev(226, 128);

/// An engine's window that is shown on a host.
class HostSinkTest : public DisplayTest {
 protected:
  void endHost() override {
    if (sink_) sink_->disconnect();
    sink_.reset();
    parent_.reset();
    host_.reset();
    recorder_.reset();
  }

  VideoSinkKind kind() override {
    VideoSinkKind kind = DisplayTest::kind();
    std::string lacks;
    recorder_ = std::make_unique<RecordingHost>(features_);
    host_ =
        HostConnection::open(recorder_->client(), relayed_ ? recorder_->relay() : nullptr, &lacks);
    EXPECT_EQ(lacks, "");
    if (host_->dmabuf()) kind.dmabuf = DmabufSupport{kDevice, {{kDevice, 0, {{0x34325258, {0}}}}}};
    if (host_->syncManager()) kind.syncDevice = SyncDevice::open(kDevice);
    kind.announceMore = [this](wl_display* display) {
      if (host_->colorManager()) announceColorManager(display, *host_);
    };
    return kind;
  }

  /// The window's surface on the host is there, and the scene draws at once whenever it is asked.
  void show() {
    openWindow();
    VideoSink::Events events;
    events.refusedByHost = [this] { ++refusals_; };
    sink_ = HostSubsurfaceSink::create(host_, &receiver_, events);
    window_->setSink(sink_);
    parent_.reset(wl_compositor_create_surface(host_->compositor()));
    place_ = {.parent = parent_.get(),
              .room = QRectF(0, 0, 320, 180),
              .picture = {320, 180},
              .afterDrawing = [this](auto then) {
                QMetaObject::invokeMethod(&receiver_, then, Qt::QueuedConnection);
              }};
    sink_->setPlace(place_);
  }
  void place(double opacity) {
    place_.opacity = opacity;
    sink_->setPlace(place_);
  }
  /// The host has shown a first frame.
  void arrive() {
    commit();
    ASSERT_TRUE(wait([&] { return recorder().count("wl_surface.commit") > 0; }));
    EXPECT_EQ(recorder().count("wp_viewport.set_destination 320 180"), 1);
    EXPECT_EQ(recorder().count("wl_region.add 0 0 320 180"), 1);
    recorder().tell("wl_callback", [](wl_resource* r) { wl_resource_post_event(r, kFirst, 1); });
    ASSERT_TRUE(wait([&] { return !sink_->hole().isEmpty(); }));
    recorder().forget();
  }
  std::shared_ptr<const TestToplevel::Answers> commit() {
    return toplevel_->commit(&addBuffer({320, 180}, Qt::red));
  }
  bool waitForCommits(int number) {
    return wait([&] { return recorder().count("wl_surface.commit") >= number; });
  }
  RecordingHost& recorder() { return *recorder_; }

  void tellOfFrames();

  std::vector<Feature> features_;
  bool relayed_ = true;  // and what the host says of frames comes past the connection
  std::unique_ptr<RecordingHost> recorder_;
  std::shared_ptr<HostConnection> host_;
  QObject receiver_;
  HostProxy<wl_surface> parent_;
  VideoSink::Place place_;
  std::shared_ptr<HostSubsurfaceSink> sink_;
  int refusals_ = 0;
};

/// A host that has all of it.
class RichHostSinkTest : public HostSinkTest {
 protected:
  RichHostSinkTest() {
    features_ = {Feature::alphaModifier, Feature::newerColorManager, Feature::dmabuf};
  }
};

TEST_F(HostSinkTest, AFrameIsOneCommitOfTheHostsWithAllThatBelongsToIt) {
  show();
  arrive();
  commit();
  ASSERT_TRUE(waitForCommits(1));
  const std::vector<std::string> expected{
      "wl_shm.create_pool 230400",
      "wl_shm_pool.create_buffer 0 320 180 1280 1",
      "wl_shm_pool.destroy",
      "wl_surface.attach 0 0",
      "wl_surface.damage_buffer 0 0 320 180",
      "wl_surface.frame",
      "wp_presentation.feedback",
      "wl_surface.commit",
  };
  EXPECT_EQ(recorder().requests(), expected);
}

TEST_F(HostSinkTest, WhatTheHostTellsOfAFrameIsToldTheEngineAsItIs) { tellOfFrames(); }
TEST_F(HostSinkTest, SoItIsOnADirectConnection) {
  relayed_ = false;
  tellOfFrames();
}

void HostSinkTest::tellOfFrames() {
  show();
  arrive();
  const auto shown = commit();
  ASSERT_TRUE(waitForCommits(1));
  recorder().tell("wl_callback", [](wl_resource* r) { wl_resource_post_event(r, kFirst, 4711); });
  recorder().tell("wp_presentation_feedback", [](wl_resource* r) {
    wl_resource_post_event(r, kPresented, 0, 5, 250, 16'666'666, 1, 2, 7);
  });
  ASSERT_TRUE(wait([&] { return shown->presentation.has_value(); }));
  const TestToplevel::Presentation expected{true, 5'000'000'250, 16'666'666, (1ULL << 32) + 2, 7};
  EXPECT_EQ(*shown->presentation, expected);
  EXPECT_EQ(shown->callbackTime, 4711U);
  const auto discarded = commit();
  ASSERT_TRUE(waitForCommits(2));
  recorder().tell("wp_presentation_feedback",
                  [](wl_resource* r) { wl_resource_post_event(r, kDiscarded); });
  ASSERT_TRUE(wait([&] { return discarded->presentation.has_value(); }));
  EXPECT_FALSE(discarded->presentation->presented);
}

TEST_F(HostSinkTest, ABufferGoesBackOnceTheHostHasReadItAndAnotherIsTheNewest) {
  show();
  arrive();
  TestBuffer& first = addBuffer({320, 180}, Qt::red);
  toplevel_->commit(&first);
  ASSERT_TRUE(waitForCommits(1));
  recorder().tell("wl_buffer", [](wl_resource* r) { wl_resource_post_event(r, kFirst); });
  toplevel_->commit(&addBuffer({320, 180}, Qt::green));
  ASSERT_TRUE(wait([&] { return first.releases() == 1; }));
  TestBuffer& third = addBuffer({320, 180}, Qt::blue);
  toplevel_->commit(&third);
  toplevel_->commit(&addBuffer({320, 180}, Qt::white));
  ASSERT_TRUE(waitForCommits(4));
  EXPECT_EQ(third.releases(), 0);  // the host reads it still
}

TEST_F(HostSinkTest, WithoutAWindowOnTheHostNothingIsShownThere) {
  show();
  arrive();
  place_.parent = nullptr;  // hidden: its surface has ended
  sink_->setPlace(place_);
  EXPECT_TRUE(sink_->hole().isEmpty());
  ASSERT_TRUE(wait([&] {
    return recorder().count("wl_surface.attach 0 0 none") +
               recorder().count("wl_surface.attach none") ==
           1;
  }));
  const auto answers = commit();
  // The display answers in the host's place.
  EXPECT_TRUE(wait([&] { return answers->frameCallbacks == 1; }));
  place_.parent = parent_.get();
  recorder().forget();
  sink_->setPlace(place_);
  EXPECT_TRUE(wait([&] { return recorder().count("wp_presentation.feedback") == 1; }));
  EXPECT_EQ(recorder().count("wl_subcompositor.get_subsurface"), 1);
}

TEST_F(HostSinkTest, AWindowThatIsResizedAllTheTimeLosesNoFrame) {
  show();
  arrive();
  constexpr int kTimes = 60;
  for (int i = 1; i <= kTimes; ++i) {
    place_.room = QRectF(0, 0, 320 + 16 * i, 180 + 9 * i);
    place_.picture = place_.room.size().toSize();
    sink_->setPlace(place_);
    toplevel_->commit(&addBuffer(place_.picture, Qt::red));
  }
  ASSERT_TRUE(wait([&] { return recorder().count("wp_presentation.feedback") == kTimes; }));
  EXPECT_EQ(recorder().count("wp_viewport.set_destination 1280 720"), 1);
  EXPECT_FALSE(sink_->hole().isEmpty());
}

TEST_F(HostSinkTest, AHostThatCantFadeShowsThePictureWhenTheFadeIsOver) {
  show();
  arrive();
  place(0.5);
  EXPECT_TRUE(wait([&] { return sink_->hole().isEmpty(); }));
  EXPECT_TRUE(wait([&] { return recorder().count("wl_surface.commit") == 1; }));
  recorder().forget();
  place(1);
  ASSERT_TRUE(wait([&] { return recorder().count("wp_presentation.feedback") == 1; }));
  recorder().tell("wl_callback", [](wl_resource* r) { wl_resource_post_event(r, kFirst, 2); });
  EXPECT_TRUE(wait([&] { return !sink_->hole().isEmpty(); }));
}

TEST_F(HostSinkTest, SwitchesAHundredTimes) {
  show();
  arrive();
  for (int i = 0; i < 100; ++i) {
    place(i % 2);
    if (i % 7 == 0) commit();
    client_->roundtrip();
    QCoreApplication::processEvents();
  }
  place(1);
  EXPECT_TRUE(wait([&] {
    recorder().tell("wl_callback", [](wl_resource* r) { wl_resource_post_event(r, kFirst, 3); });
    return !sink_->hole().isEmpty();
  }));
}

TEST_F(HostSinkTest, NoFrameNeedsTheMainThread) {
  show();
  arrive();
  std::vector<std::shared_ptr<const TestToplevel::Answers>> answers;
  for (int i = 1; i <= 5; ++i) {
    answers.push_back(commit());
    client_->roundtrip();  // runs no event of Qt's
    while (recorder().count("wl_surface.commit") < i) std::this_thread::yield();
    recorder().tell("wl_callback", [](wl_resource* r) { wl_resource_post_event(r, kFirst, 1); });
    while (answers.back()->frameCallbacks == 0) client_->roundtrip();
  }
}

TEST_F(RichHostSinkTest, AHostThatCanFadeDoes) {
  show();
  arrive();
  place(0.5);
  ASSERT_TRUE(wait([&] { return recorder().count("wl_surface.commit") == 1; }));
  EXPECT_EQ(recorder().requests(),
            (std::vector<std::string>{"wp_alpha_modifier_surface_v1.set_multiplier -2147483648",
                                      "wl_surface.commit"}));
  EXPECT_FALSE(sink_->hole().isEmpty());
}

TEST_F(RichHostSinkTest, ColoursAreToldWithTheFrameThatHasThem) {
  show();
  arrive();
  auto* creator = wp_color_manager_v1_create_parametric_creator(client_->colorManager.get());
  wp_image_description_creator_params_v1_set_tf_named(
      creator, WP_COLOR_MANAGER_V1_TRANSFER_FUNCTION_ST2084_PQ);
  wp_image_description_creator_params_v1_set_primaries_named(creator,
                                                             WP_COLOR_MANAGER_V1_PRIMARIES_BT2020);
  wp_image_description_creator_params_v1_set_mastering_luminance(creator, 1, 1000);
  wp_image_description_creator_params_v1_set_max_cll(creator, 0);  // as drivers do
  const HostProxy<wp_image_description_v1> description(
      wp_image_description_creator_params_v1_create(creator));
  bool isReady = false;
  static constexpr wp_image_description_v1_listener kListener{
      .failed = ignore<wp_image_description_v1*, std::uint32_t, const char*>,
      .ready = [](void* data, auto*, std::uint32_t identity) {
        *static_cast<bool*>(data) = identity == 42;
      }};
  wp_image_description_v1_add_listener(description.get(), &kListener, &isReady);
  client_->roundtrip();
  ASSERT_TRUE(
      wait([&] { return recorder().count("wp_image_description_creator_params_v1.create") == 1; }));
  EXPECT_EQ(recorder().requests(),
            (std::vector<std::string>{
                "wp_color_manager_v1.create_parametric_creator",
                "wp_image_description_creator_params_v1.set_tf_named 11",
                "wp_image_description_creator_params_v1.set_primaries_named 6",
                "wp_image_description_creator_params_v1.set_mastering_luminance 1 1000",
                "wp_image_description_creator_params_v1.create"}));
  recorder().tell("wp_image_description_v1",
                  [](wl_resource* r) { wl_resource_post_event(r, kSecond, 42); });
  ASSERT_TRUE(wait([&] { return isReady; }));
  const HostProxy<wp_color_management_surface_v1> colored(
      wp_color_manager_v1_get_surface(client_->colorManager.get(), toplevel_->surface()));
  wp_color_management_surface_v1_set_image_description(colored.get(), description.get(), 0);
  client_->roundtrip();
  EXPECT_EQ(recorder().count("wp_color_management_surface_v1"), 0);  // it is no commit
  commit();
  ASSERT_TRUE(waitForCommits(1));
  EXPECT_EQ(recorder().count("wp_color_management_surface_v1.set_image_description"), 1);
  commit();
  ASSERT_TRUE(waitForCommits(2));
  EXPECT_EQ(recorder().count("wp_color_management_surface_v1.set_image_description"), 1);
}

TEST_F(RichHostSinkTest, TheEngineHearsWhatTheHostPrefersWhereThePictureIsAndAsksAnew) {
  show();
  EXPECT_EQ(recorder().count("wp_color_manager_v1.bound 1"), 1);
  arrive();
  using Feedback = wp_color_management_surface_feedback_v1;
  const HostProxy<Feedback> feedback(
      wp_color_manager_v1_get_surface_feedback(client_->colorManager.get(), toplevel_->surface()));
  std::uint32_t preferred = 0;
  static constexpr wp_color_management_surface_feedback_v1_listener kListener{
      .preferred_changed = [](void* data, Feedback*, std::uint32_t identity) {
        *static_cast<std::uint32_t*>(data) = identity;
      }};
  wp_color_management_surface_feedback_v1_add_listener(feedback.get(), &kListener, &preferred);
  client_->roundtrip();
  recorder().tell("wp_color_management_surface_feedback_v1",
                  [](wl_resource* r) { wl_resource_post_event(r, kFirst, 7); });
  ASSERT_TRUE(wait([&] { return preferred == 7; }));
  const HostProxy<wp_image_description_v1> asked(
      wp_color_management_surface_feedback_v1_get_preferred_parametric(feedback.get()));
  client_->roundtrip();
  EXPECT_TRUE(wait([&] {
    return recorder().count("wp_color_management_surface_feedback_v1.get_preferred_parametric") ==
           1;
  }));
}

TEST_F(RichHostSinkTest, WhereTheHostRefusesADmabufTheSceneDraws) {
  show();
  arrive();
  TestBuffer buffer({.size = {320, 180}});
  buffer.createDmabuf(*client_);
  toplevel_->commit(&buffer);
  ASSERT_TRUE(
      wait([&] { return recorder().count("zwp_linux_buffer_params_v1.create 320 180") == 1; }));
  EXPECT_EQ(recorder().count("zwp_linux_buffer_params_v1.create_immed"), 0);
  EXPECT_EQ(recorder().count("wl_surface"), 0);  // what it has stays until the buffer is made
  recorder().tell("zwp_linux_buffer_params_v1",
                  [](wl_resource* r) { wl_resource_post_event(r, kSecond); });
  EXPECT_TRUE(wait([&] { return refusals_ == 1 && sink_->hole().isEmpty(); }));
}

/// A host, and an engine, that say themselves when a buffer is drawn and when it is free.
class SyncedHostSinkTest : public HostSinkTest {
 protected:
  SyncedHostSinkTest() { features_ = {Feature::dmabuf, Feature::synchronisation}; }

  /// One of the engine's.
  struct Timeline {
    explicit Timeline(TestClient& client) {
      const UniqueFd shared = own->share();
      told.reset(
          wp_linux_drm_syncobj_manager_v1_import_timeline(client.syncManager.get(), shared.get()));
    }
    std::shared_ptr<const SyncTimeline> own = SyncTimeline::create(SyncDevice::open(kDevice));
    Proxy<wp_linux_drm_syncobj_timeline_v1> told;
  };

  /// From here on the engine's surface is synchronised by points.
  void synchronise() {
    acquire_.emplace(*client_);
    release_.emplace(*client_);
    synced_.reset(wp_linux_drm_syncobj_manager_v1_get_surface(client_->syncManager.get(),
                                                              toplevel_->surface()));
  }
  void commitDmabuf(std::uint32_t point) {
    TestBuffer& buffer =
        *buffers_.emplace_back(std::make_unique<TestBuffer>(TestBuffer::Layout{{320, 180}}));
    buffer.createDmabuf(*client_);
    commitAt(point, buffer);
  }
  void commitAt(std::uint32_t point, const TestBuffer& buffer) {
    wp_linux_drm_syncobj_surface_v1_set_acquire_point(synced_.get(), acquire_->told.get(), 0,
                                                      point);
    wp_linux_drm_syncobj_surface_v1_set_release_point(synced_.get(), release_->told.get(), 0,
                                                      point);
    toplevel_->commit(&buffer);
  }
  void TearDown() override {
    synced_.reset();
    acquire_.reset();
    release_.reset();
    HostSinkTest::TearDown();
  }

  std::optional<Timeline> acquire_, release_;
  Proxy<wp_linux_drm_syncobj_surface_v1> synced_;
};

TEST_F(SyncedHostSinkTest, TheHostWaitsForTheEngineAndTheEngineForTheHost) {
  show();
  arrive();
  synchronise();
  const auto commitShown = [&](std::uint32_t point, int number) {
    commitDmabuf(point);
    ASSERT_TRUE(
        wait([&] { return recorder().count("zwp_linux_buffer_params_v1.create ") == number; }));
    recorder().makeDmabuf();
    ASSERT_TRUE(waitForCommits(number));
  };
  commitShown(5, 1);
  const auto all = recorder().requests();
  const std::vector<std::string> expected{
      "wp_linux_drm_syncobj_manager_v1.import_timeline",
      "wp_linux_drm_syncobj_manager_v1.import_timeline",
      "wp_linux_drm_syncobj_manager_v1.get_surface",
      "wp_linux_drm_syncobj_surface_v1.set_acquire_point 0 5",
      "wp_linux_drm_syncobj_surface_v1.set_release_point 0 1",
      "wl_surface.attach 0 0",
  };
  EXPECT_TRUE(std::ranges::search(all, expected).begin() != all.end());
  const auto hosts = SyncTimeline::import(SyncDevice::open(kDevice), recorder().takeTimeline());
  recorder().tell("wl_buffer", [](wl_resource* r) { wl_resource_post_event(r, kFirst); });
  commitShown(6, 2);
  place_.parent = nullptr;
  sink_->setPlace(place_);
  ASSERT_TRUE(waitForCommits(3));
  EXPECT_FALSE(release_->own->isSignalled(5));  // the host's GPU may read it still
  hosts->signal(1);
  EXPECT_TRUE(wait([&] { return release_->own->isSignalled(5); }));
  EXPECT_FALSE(release_->own->isSignalled(6));  // the scene's
  place_.parent = parent_.get();
  sink_->setPlace(place_);
  synced_.reset();
  commit();  // through shared memory, without points
  EXPECT_TRUE(
      wait([&] { return recorder().count("wp_linux_drm_syncobj_surface_v1.destroy") == 1; }));
}

TEST_F(SyncedHostSinkTest, ABufferIsFreeWhenItsLastReaderLetsGo) {
  openWindow();
  synchronise();
  const auto sink = std::make_shared<KeepingSink>();
  window_->setSink(sink);
  commitDmabuf(1);
  std::shared_ptr<Frame> first;
  ASSERT_TRUE(wait([&] { return (first = sink->takeLast()) != nullptr; }));
  std::promise<std::shared_ptr<Frame>> promise;
  Frame::readLater(first, Frame::Reporter::thisFrame,
                   [&](std::shared_ptr<Frame> frame) { promise.set_value(std::move(frame)); });
  auto second = promise.get_future().get();
  const UniqueFd read(eventfd(0, EFD_CLOEXEC));
  second->sync()->readUntil(UniqueFd(dup(read.get())));
  first.reset();
  EXPECT_FALSE(release_->own->isSignalled(1));
  second.reset();
  EXPECT_FALSE(release_->own->isSignalled(1));  // its GPU reads it still
  eventfd_write(read.get(), 1);
  EXPECT_TRUE(wait([&] { return release_->own->isSignalled(1); }));
}

TEST_F(SyncedHostSinkTest, SharedMemoryHasNoPoints) {
  show();
  synchronise();
  commitAt(1, addBuffer({320, 180}, Qt::red));
  EXPECT_FALSE(client_->roundtrip());
}

}  // namespace tromelo::testing
