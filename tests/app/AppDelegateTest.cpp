#include "app/AppDelegate.h"

#include <gtest/gtest.h>

#include <QJsonObject>
#include <QThreadPool>
#include <future>

#include "platform/FilePath.h"
#include "player/PlayerTest.h"
#include "support/Files.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

CommandLine fileAt(const std::string& path, std::optional<double> start = {}) {
  return {.file = fileUrlFromPath(path), .start = start};
}

struct AppDelegateTest : ::testing::Test, protected PlayerParts {
  void launch(const CommandLine& line) {
    delegate_ = std::make_unique<AppDelegate>(
        line, defaults_, std::vector{former_}, clock_,
        AppDelegate::Parts{[this] { return std::make_unique<PlaybackModel>(parts()); },
                           [this](PlaybackModel&, PlayerWindowController&) {
                             ++libraries_;
                             auto window = std::make_unique<FakeLibraryWindow>(clock_);
                             library_ = window.get();
                             return window;
                           }});
    QObject::connect(delegate_.get(), &AppDelegate::readyToTerminate, delegate_.get(),
                     [this] { ++ready_; });
  }

  /// The "loadfile" requests since the last call: path and options.
  std::vector<std::string> takeLoaded() {
    std::vector<std::string> loaded;
    for (const auto& words : std::exchange(mpv_.requests, {}))
      if (words.front() == "loadfile") loaded.push_back(words[1] + " " + words.back());
    return loaded;
  }

  UserDefaults former_{directory_.filePath("former.json")};
  std::unique_ptr<AppDelegate> delegate_;
  FakeLibraryWindow* library_ = nullptr;
  int libraries_ = 0;
  int ready_ = 0;
};

TEST_F(AppDelegateTest, OpensTheFirstOfTheFilesHandedOverAndNoneThatIsMissing) {
  launch(fileAt("/no/such/movie.mkv"));
  delegate_->applicationDidFinishLaunching();
  settle();
  delegate_->applicationOpen({});
  EXPECT_EQ(takeLoaded(), std::vector<std::string>{});
  EXPECT_EQ(delegate_->playback().errorMessage(), QString());
  delegate_->applicationOpen({fileUrlFromPath("/a.mkv"), fileUrlFromPath("/b.mkv")});
  EXPECT_EQ(takeLoaded(), std::vector<std::string>{"/a.mkv "});
}

TEST_F(AppDelegateTest, OpensTheLaunchFileOnceAndAfterTheLibraryIsShown) {
  const std::string movie = directory_.filePath("movie.mkv").toStdString();
  writeFile(movie);
  launch(fileAt(movie, 90));
  EXPECT_EQ(libraries_, 0);
  delegate_->applicationOpen({fileUrlFromPath(movie)});  // the desktop hands it over as well
  delegate_->applicationDidFinishLaunching();
  EXPECT_TRUE(library_->visible);
  std::vector<std::string> loaded;
  EXPECT_TRUE(waitFor([&] { return !(loaded = takeLoaded()).empty(); }));
  EXPECT_EQ(loaded, std::vector{movie + " start=90.0"});
  delegate_->applicationOpen({fileUrlFromPath(movie)});
  EXPECT_EQ(takeLoaded(), std::vector{movie + " "});
}

TEST_F(AppDelegateTest, SaysInTheLibraryWhatItCannotPlay) {
  launch({});
  delegate_->applicationDidFinishLaunching();
  library_->orderOut();
  delegate_->applicationOpen({QUrl("smb://nas/a.mkv")});
  EXPECT_TRUE(waitFor([this] { return library_->visible; }));
  EXPECT_EQ(delegate_->playback().errorMessage(), "Tromelo plays local files only.");
}

TEST_F(AppDelegateTest, TakesOverTheFormerEditionsSettingsBeforeTheyAreRead) {
  former_.set("playerSettings", QJsonObject{{"autoHideDelay", 4.5}});
  launch({});
  EXPECT_EQ(delegate_->playback().settings().autoHideDelay(), 4.5);
}

TEST_F(AppDelegateTest, ReopensItsOneLibraryWindow) {
  launch({});
  delegate_->applicationDidFinishLaunching();
  library_->orderOut();
  EXPECT_TRUE(delegate_->applicationShouldHandleReopen(true));
  EXPECT_FALSE(library_->visible);
  library_->setOpacity(0);
  EXPECT_TRUE(delegate_->applicationShouldHandleReopen(false));
  EXPECT_TRUE(library_->visible);
  EXPECT_EQ(library_->opacity, 1);
  EXPECT_EQ(libraries_, 1);
}

TEST_F(AppDelegateTest, QuitsOnceHoweverOftenItIsAsked) {
  launch({});
  delegate_->applicationDidFinishLaunching();
  FakeVideoWindow window(clock_);
  windows_.add(window);
  delegate_->quit();
  EXPECT_TRUE(delegate_->playback().isShuttingDown());
  EXPECT_FALSE(delegate_->player().hasWindow());
  delegate_->quit();
  EXPECT_EQ(delegate_->applicationShouldTerminate(), TerminateReply::later);
  EXPECT_TRUE(waitFor([this] { return ready_ > 0; }));
  settle();
  EXPECT_EQ(ready_, 1);
  EXPECT_EQ(mpv_.destroyed, 1);
}

TEST_F(AppDelegateTest, QuitsWithinFiveSecondsWhateverTheEngineDoes) {
  std::promise<void> comesBack;
  api_.terminateDestroy = [&](mpv_handle*) { comesBack.get_future().wait(); };
  launch({});
  delegate_->quit();
  settle();
  EXPECT_EQ(ready_, 0);
  clock_.advance(std::chrono::seconds(5));
  EXPECT_EQ(ready_, 1);
  EXPECT_TRUE(delegate_->engineHangs());
  comesBack.set_value();
  QThreadPool::globalInstance()->waitForDone();
  settle();
  EXPECT_EQ(ready_, 1);
}

TEST_F(AppDelegateTest, QuitsAtOnceWithoutAnEngine) {
  mpv_.cannotBeCreated = true;
  launch({});
  delegate_->applicationDidFinishLaunching();
  EXPECT_EQ(delegate_->playback().errorMessage(), "Could not create the playback engine");
  library_->orderOut();
  delegate_->applicationOpen({fileUrlFromPath("/a.mkv")});
  EXPECT_TRUE(library_->visible);
  delegate_->quit();
  EXPECT_EQ(ready_, 1);
}

}  // namespace tromelo::testing
