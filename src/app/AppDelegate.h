#pragma once

#include <QList>
#include <QObject>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/CommandLine.h"
#include "app/LaunchFile.h"
#include "platform/Clock.h"
#include "platform/UserDefaults.h"
#include "playback/PlaybackModel.h"
#include "player/ControlledWindow.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

enum class TerminateReply { now, cancel, later };

/// The program from launch to quit: owns the model and the library window, opens what the command
/// line and the system hand over, and quits in order. Main thread only.
class AppDelegate : public QObject {
  Q_OBJECT

 public:
  /// What the delegate makes its objects with. The model's player must be a PlayerWindowController.
  struct Parts {
    std::function<std::unique_ptr<PlaybackModel>()> makePlayback;
    std::function<std::unique_ptr<ControlledWindow>(PlaybackModel&, PlayerWindowController&)>
        makeLibraryWindow;
  };

  /// `defaults` and `clock` outlive it; `formerDefaults` are the former edition's stores, asked in
  /// order.
  AppDelegate(const CommandLine& commandLine, UserDefaults& defaults,
              const std::vector<UserDefaults>& formerDefaults, Clock& clock, Parts parts);
  ~AppDelegate() override;

  PlaybackModel& playback() { return *playback_; }
  PlayerWindowController& player();

  void applicationDidFinishLaunching();
  /// Opens the first. Where there is no engine the library comes up, which says why.
  void applicationOpen(const QList<QUrl>& urls, std::optional<double> start = std::nullopt);
  bool applicationShouldHandleReopen(bool hasVisibleWindows);
  TerminateReply applicationShouldTerminate();
  void showLibraryWindow();

  /// It was given up at the end, and its threads still run.
  bool engineHangs() const { return engineHangs_; }

  /// Asks whether to quit, and quits when that may be: see readyToTerminate.
  void quit();

 Q_SIGNALS:
  /// The engine is about to be destroyed.
  void willTerminate();
  /// Nothing keeps the process any more: the engine is gone, or is not waited for any longer.
  void readyToTerminate();

 private:
  void open(const QUrl& url, std::optional<double> start);

  void endEngine();

  Clock& clock_;
  Parts parts_;
  bool didFinishLaunching_ = false;
  const CommandLine commandLine_;
  LaunchFile launchFile_;
  std::unique_ptr<PlaybackModel> playback_;
  std::unique_ptr<ControlledWindow> libraryWindow_;
  std::unique_ptr<Clock::Timer> patience_;  // with the engine, at the end
  bool engineHangs_ = false;
};

}  // namespace tromelo
