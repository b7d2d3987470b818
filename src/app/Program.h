#pragma once

#include <QQmlEngine>
#include <memory>
#include <optional>
#include <string>

#include "app/AppDelegate.h"
#include "app/ApplicationService.h"
#include "app/CommandLine.h"
#include "app/DialogFileChooser.h"
#include "app/StateReport.h"
#include "app/TerminationSignals.h"
#include "display/PrivateDisplay.h"
#include "display/SceneDrawing.h"
#include "films/FilmMemory.h"
#include "mpris/MprisService.h"
#include "pictures/PictureSource.h"
#include "platform/Clock.h"
#include "platform/IdleInhibitor.h"
#include "platform/ReducedMotion.h"
#include "platform/UserDefaults.h"
#include "player/Commands.h"
#include "player/PlayerStage.h"
#include "windows/AboutFacts.h"
#include "windows/ProgramWindow.h"
#include "windows/SettingsPages.h"

namespace tromelo {

class HostRelay;

/// Puts the program's objects together and keeps them in the order in which they may end.
class Program {
 public:
  /// Needs the application object. `relay` outlives it, and may be none.
  Program(const CommandLine& commandLine, HostRelay* relay);
  ~Program();

  /// Runs until the person quits; gives the process's exit status.
  int run();

  /// The engine was given up: the application object would wait for it for ever.
  bool engineHangs() const { return delegate_ && delegate_->engineHangs(); }

 private:
  void preloadViews();
  void startDisplay();
  void preparePlayerWindow();
  const SceneDrawing& drawing();
  void applyDrawing();
  void doWithoutDmabufs();
  void doWithoutHost();
  void followReducedMotion();
  void makeDelegate();
  std::unique_ptr<ControlledWindow> makeLibraryWindow(PlaybackModel& playback,
                                                      PlayerWindowController& player);
  void makeCommands();
  void showSettings(SettingsPages::Page page);
  void showAbout();
  void connectService();
  void startReport();
  void tellOfStorageErrors();
  void tellOfStorage(const QString& sentence);
  void tellOfMissingLog();
  void offerToDesktop();
  void offerMediaControls();
  void offerPictures();
  void keepAwake();
  void bringToFront();
  void handleLibraryClosed();
  QString windowText();

  const CommandLine commandLine_;
  HostRelay* relay_;
  SystemClock clock_;
  UserDefaults defaults_;
  FilmMemory films_;
  ReducedMotion reducedMotion_;
  DialogFileChooser chooser_;
  std::unique_ptr<IdleInhibitor> idleInhibitor_;
  ApplicationService service_;
  ApplicationService::Role role_ = ApplicationService::Role::alone;
  std::optional<SceneDrawing> drawing_;
  PrivateDisplay display_;
  bool videoCanBeSampled_ = true;
  PictureWay pictureWay_;
  std::string vulkanDevice_;
  QString displayFault_;  // a sentence: why there is none
  QQmlEngine qmlEngine_;
  PictureSource pictures_;
  std::unique_ptr<PlayerStage> stage_;
  std::unique_ptr<Commands> commands_;
  std::unique_ptr<AppDelegate> delegate_;
  SettingsPages settingsPages_;
  std::unique_ptr<ProgramWindow> settingsWindow_;
  std::unique_ptr<AboutFacts> facts_;  // since the first look
  std::unique_ptr<ProgramWindow> aboutWindow_;
  std::unique_ptr<StateReport> report_;
  std::unique_ptr<MprisService> mediaControls_;
  TerminationSignals signals_;
};

}  // namespace tromelo
