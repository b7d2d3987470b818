// The real engine on the private display, with a scene and without the rest of the program.
#include <mpv/client.h>

#include <QQuickWindow>
#include <chrono>
#include <clocale>
#include <thread>

#include "DisplayTest.h"
#include "display/EngineWindowItem.h"
#include "support/Clips.h"
#include "support/WaitFor.h"

namespace tromelo::testing {
namespace {

using namespace std::chrono_literals;

constexpr QSize windowSize(640, 360);
constexpr QSize screenSize(1280, 800);

class EngineOnDisplayTest : public ::testing::Test {
 protected:
  using Options = std::initializer_list<std::pair<const char*, const char*>>;

  void SetUp() override {
    display_ = std::make_unique<PrivateDisplay>();
    VideoSinkKind sinkKind = chooseVideoSink({[] { return true; }});
    sinkKind.dmabuf.reset();
    ASSERT_EQ(display_->start({screenSize, 60'000}, sinkKind), std::nullopt);
    window_.setColor(Qt::black);
    window_.resize(windowSize);
    item_ = new EngineWindowItem(window_.contentItem());
    item_->setSize(windowSize);
    window_.show();
    QObject::connect(display_.get(), &PrivateDisplay::windowAdded, &window_,
                     [this](EngineWindow* window) { adopt(window); });
    QObject::connect(item_, &EngineWindowItem::firstFrameShown, [this] { isShowing_ = true; });
    qputenv("WAYLAND_DISPLAY", display_->socketPath());  // Qt is connected to the host already
  }
  void TearDown() override {
    mpv_.reset();
    EXPECT_TRUE(waitFor([this] { return display_->windows().isEmpty(); }));
  }

  void play() {
    std::setlocale(LC_NUMERIC, "C");
    mpv_.reset(mpv_create());
    for (const auto& [name, value] : Options{{"vo", "gpu-next"},
                                             {"gpu-api", "vulkan"},
                                             {"gpu-context", "waylandvk"},
                                             {"gpu-sw", "yes"},
                                             {"clipboard-backends", ""},
                                             {"ao", "null"},
                                             {"loop-file", "inf"},
                                             {"config", "no"}})
      mpv_set_option_string(mpv_.get(), name, value);
    ASSERT_GE(mpv_initialize(mpv_.get()), 0);
    const std::string clip = clipPath("sample.mp4");
    const char* command[] = {"loadfile", clip.c_str(), nullptr};
    ASSERT_GE(mpv_command(mpv_.get(), command), 0);
    ASSERT_TRUE(waitFor([this] { return isShowing_; }));
  }

  void adopt(EngineWindow* window) {
    engineWindow_ = window;
    item_->setEngineWindow(window);
    window->setHostState({windowSize, false, true, true});
    QObject::connect(window, &EngineWindow::fullscreenRequested, [window](bool fullscreen) {
      // Back to a size of the engine's own choice.
      window->setHostState({fullscreen ? screenSize : QSize(), fullscreen, true, true});
    });
  }

  double position() {
    double seconds = -1;
    mpv_get_property(mpv_.get(), "time-pos", MPV_FORMAT_DOUBLE, &seconds);
    return seconds;
  }
  bool waitForSize(QSize size) {
    return waitFor([this, size] { return engineWindow_->size() == size; });
  }

  std::unique_ptr<PrivateDisplay> display_;
  QQuickWindow window_;
  EngineWindowItem* item_ = nullptr;
  EngineWindow* engineWindow_ = nullptr;
  bool isShowing_ = false;
  std::unique_ptr<mpv_handle, decltype([](mpv_handle* m) { mpv_terminate_destroy(m); })> mpv_;
};

TEST_F(EngineOnDisplayTest, ItsClockGoesOnWhileTheMainThreadIsBusy) {
  play();
  ASSERT_TRUE(waitFor([this] { return position() > 0.5; }));
  constexpr auto busy = 300ms;
  const double before = position();
  std::this_thread::sleep_for(busy);  // this is what is being tested
  EXPECT_GT(position() - before, std::chrono::duration<double>(busy).count() / 2);
}

TEST_F(EngineOnDisplayTest, PlaysOnWhileItIsHiddenAndShowsWhenItComesBack) {
  play();
  ASSERT_TRUE(waitFor([this] { return position() > 0.5; }));
  window_.hide();
  // The picture goes nowhere, and is counted.
  const auto sink = std::make_shared<KeepingSink>();
  engineWindow_->setSink(sink);
  constexpr int seconds = 3;
  const double hiddenAt = position();
  EXPECT_TRUE(waitFor([&] { return position() > hiddenAt + seconds; }));
  EXPECT_LE(sink->commits(), 2u * seconds);  // of 30 a second; the first ones were on their way
  item_->setEngineWindow(nullptr);
  item_->setEngineWindow(engineWindow_);
  int swaps = 0;
  QObject::connect(&window_, &QQuickWindow::frameSwapped, &window_, [&] { ++swaps; });
  window_.show();
  EXPECT_TRUE(waitFor([&] { return swaps > 5; }));
}

TEST_F(EngineOnDisplayTest, FollowsTheHostsSizeAndComesBackFromFullScreen) {
  play();
  ASSERT_TRUE(waitForSize(windowSize));
  engineWindow_->setHostState({QSize(960, 540), false, true, true});
  EXPECT_TRUE(waitForSize(QSize(960, 540)));
  mpv_set_property_string(mpv_.get(), "fullscreen", "yes");
  EXPECT_TRUE(waitForSize(screenSize));
  mpv_set_property_string(mpv_.get(), "fullscreen", "no");
  EXPECT_TRUE(waitForSize(QSize(960, 540)));
}

}  // namespace
}  // namespace tromelo::testing
