#include "app/AppDelegate.h"

#include <QPointer>
#include <chrono>
#include <utility>

#include "app/DefaultsMigration.h"

namespace tromelo {

namespace {

/// With an engine that is told to end. What is left of five seconds is for the disk.
constexpr std::chrono::seconds kEnginePatience(4);

}  // namespace

AppDelegate::AppDelegate(const CommandLine& commandLine, UserDefaults& defaults,
                         const std::vector<UserDefaults>& formerDefaults, Clock& clock, Parts parts)
    : clock_(clock),
      parts_(std::move(parts)),
      commandLine_(commandLine),
      launchFile_(commandLine.file) {
  // The settings are loaded by the model, so what the former edition left has to be there before.
  migrateDefaultsFromOrvo(defaults, formerDefaults);
  playback_ = parts_.makePlayback();
}

AppDelegate::~AppDelegate() = default;

PlayerWindowController& AppDelegate::player() {
  return static_cast<PlayerWindowController&>(playback_->player());
}

void AppDelegate::applicationDidFinishLaunching() {
  didFinishLaunching_ = true;
  showLibraryWindow();
  launchFile_.whenThere([this](const QUrl& file) { open(file, commandLine_.start); });
}

void AppDelegate::applicationOpen(const QList<QUrl>& urls, std::optional<double> start) {
  if (urls.isEmpty()) return;
  const bool opensAtLaunch = !didFinishLaunching_ && urls.first() == commandLine_.file;
  if (!opensAtLaunch) open(urls.first(), start);
  if (!playback_->engine().hasHandle()) showLibraryWindow();
}

void AppDelegate::open(const QUrl& url, std::optional<double> start) {
  launchFile_.drop();
  playback_->withLocalFiles(
      {url}, [this, start](const QList<QUrl>& files) { playback_->open(files.first(), start); });
}

bool AppDelegate::applicationShouldHandleReopen(bool hasVisibleWindows) {
  if (!hasVisibleWindows) showLibraryWindow();
  return true;
}

void AppDelegate::showLibraryWindow() {
  if (!libraryWindow_) {
    libraryWindow_ = parts_.makeLibraryWindow(*playback_, player());
    player().setLibraryWindow(libraryWindow_.get());
  }
  libraryWindow_->setOpacity(1);
  libraryWindow_->makeKeyAndOrderFront();
}

TerminateReply AppDelegate::applicationShouldTerminate() {
  // Asked first: the engine gives its handle up as soon as it begins to shut down.
  if (playback_->isShuttingDown()) return TerminateReply::later;
  if (!playback_->engine().hasHandle()) return TerminateReply::now;
  playback_->setShuttingDown(true);
  Q_EMIT willTerminate();
  player().prepareForTermination();
  endEngine();
  return TerminateReply::later;
}

void AppDelegate::endEngine() {
  patience_ = clock_.after(kEnginePatience, [this] {
    engineHangs_ = true;
    Q_EMIT readyToTerminate();
  });
  playback_->engine().terminate([self = QPointer(this)] {
    // One that hung before may be left.
    if (!self || self->engineHangs_ || self->playback_->engine().isDestroying()) return;
    self->patience_.reset();
    Q_EMIT self->readyToTerminate();
  });
}

void AppDelegate::quit() {
  if (applicationShouldTerminate() == TerminateReply::now) Q_EMIT readyToTerminate();
}

}  // namespace tromelo
