#include "app/Program.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QQmlComponent>
#include <atomic>
#include <cstdio>
#include <thread>

#include "app/DefaultsMigration.h"
#include "display/EglDevice.h"
#include "display/VideoSinkKind.h"
#include "display/VulkanDevices.h"
#include "engine/FoundSoundDevices.h"
#include "engine/MpvClientApi.h"
#include "glass/Glass.h"
#include "library/LibraryWindow.h"
#include "overlay/QuickPlayerOverlay.h"
#include "platform/DesktopRecents.h"
#include "platform/FilePath.h"
#include "platform/HardwareDecoders.h"
#include "platform/HeapMemory.h"
#include "platform/HostEnvironment.h"
#include "platform/SessionBus.h"
#include "platform/Timeline.h"
#include "platform/UserPaths.h"
#include "platform/VulkanDrivers.h"
#include "theme/Motion.h"

namespace tromelo {

namespace {

void putOntoClipboard(const QByteArray& png) {
  auto content = std::make_unique<QMimeData>();
  content->setData(QStringLiteral("image/png"), png);
  QGuiApplication::clipboard()->setMimeData(content.release());
}

/// On another thread, and once at a time.
void tidyUpAfterFilm() {
  static std::atomic<bool> isAtWork = false;
  if (isAtWork.exchange(true)) return;
  std::thread([] {
    keepVulkanDriversLoaded();
    giveBackFreeMemory();
    isAtWork = false;
  }).detach();
}

/// The program itself, as its process for pictures.
HelperProcess::Program pictureMaker() {
  return {.file = QCoreApplication::applicationFilePath(),
          .arguments = {QString::fromLatin1(kPicturesOption)}};
}

}  // namespace

Program::Program(const CommandLine& commandLine, HostRelay* relay)
    : commandLine_(commandLine),
      relay_(relay),
      defaults_(UserDefaults::named(QStringLiteral("Tromelo"))),
      films_(userDataDirectory() + QStringLiteral("/Tromelo/films.sqlite"),
             [this](const QString& sentence) { tellOfStorage(sentence); }),
      reducedMotion_(qgetenv("TROMELO_REDUCED_MOTION"), sessionBus()),
      service_(sessionBus()),
      pictures_({.maker = pictureMaker(),
                 .folder = userCacheDirectory() + QStringLiteral("/Tromelo/pictures"),
                 .clock = clock_}) {}

Program::~Program() = default;

int Program::run() {
  const auto isMissing = [this] { return LaunchFile(commandLine_.file).isMissing(); };
  role_ = service_.start({.file = commandLine_.file,
                          .start = commandLine_.start,
                          .isPrivate = commandLine_.isPrivate,
                          .isFileMissing = isMissing});
  if (role_ == ApplicationService::Role::handedOver) return 0;
  Timeline::note("other programs asked");
  preloadViews();
  startDisplay();
  Timeline::note("private display started");
  makeDelegate();
  Timeline::note("engine started");
  connectService();
  if (commandLine_.report) startReport();
  tellOfStorageErrors();
  tellOfMissingLog();
  offerToDesktop();
  offerMediaControls();
  offerPictures();
  keepAwake();
  Timeline::note("desktop told");
  delegate_->applicationDidFinishLaunching();
  Timeline::note("file handed to the engine");
  // From here on the engine opens the file, if there is one, beside us.
  applyDrawing();
  Timeline::note("drawing chosen");
  followReducedMotion();
  QMetaObject::invokeMethod(
      delegate_.get(), [this] { preparePlayerWindow(); }, Qt::QueuedConnection);
  Timeline::note("event loop begins");
  const int status = QCoreApplication::exec();
  defaults_.flush();
  if (report_) report_->flush();
  return status;
}

/// A thread of Qt's own finds out what the first views are made of, while the engine is started.
void Program::preloadViews() {
  const auto preload = [this](const char* module, const char* view) {
    auto* component = new QQmlComponent(&qmlEngine_, &qmlEngine_);
    component->loadFromModule(module, view, QQmlComponent::Asynchronous);
  };
  if (commandLine_.file) preload("Tromelo.Overlay", "PlayerOverlayView");
  preload("Tromelo.Library", "LibraryScene");
}

/// In the loop's first turn, before the library.
void Program::preparePlayerWindow() {
  if (delegate_->player().isAwaitingVideo())
    stage_->prepareWindow(delegate_->playback(), delegate_->player());
  Timeline::note("player window prepared");
}

const SceneDrawing& Program::drawing() {
  if (!drawing_) drawing_ = SceneDrawing::choose();
  return *drawing_;
}

void Program::applyDrawing() {
  const bool inSoftware = !drawing().withOpenGl || drawsInSoftware(platformEglDisplay());
  Glass::setRendering(Glass::choose(qgetenv("TROMELO_GLASS"), inSoftware || !videoCanBeSampled_));
  if (drawing().lacksOpenGl)
    delegate_->playback().tell(QCoreApplication::translate(
        "Program",
        "OpenGL doesn't work here, which makes drawing slow; install the OpenGL driver of your "
        "graphics card (libgl1-mesa-dri)."));
}

void Program::followReducedMotion() {
  auto* const motion = &Motion::of(qmlEngine_);
  const auto tell = [this, motion] { motion->setWanted(!reducedMotion_.isWanted()); };
  QObject::connect(&reducedMotion_, &ReducedMotion::changed, motion, tell);
  tell();
}

void Program::startDisplay() {
  // Loading the engine's library keeps nobody waiting who does something else meanwhile.
  std::jthread loading([] { MpvClientApi::libmpv(); });
  // What the scene is drawn with is found out now only where the sink depends on it: that takes
  // a moment, which the engine can use to open the file.
  const VideoSinkKind sink =
      chooseVideoSink({.asked = qgetenv("TROMELO_PICTURE"),
                       .drawsWithOpenGl = [this] { return drawing().withOpenGl; },
                       .relay = relay_});
  videoCanBeSampled_ = sink.canBeSampled;
  pictureWay_ = sink.way;
  const auto output = PlayerStage::outputOf(*QGuiApplication::primaryScreen());
  if (const auto fault = display_.start(output, sink)) {
    displayFault_ = QCoreApplication::translate("Program", "Videos can't be shown: %1").arg(*fault);
    std::fprintf(stderr, "%s\n", qPrintable(displayFault_));
    return;
  }
  if (sink.dmabuf) vulkanDevice_ = vulkanUuidForScene(sink.dmabuf->mainDevice);
  loading.join();  // it reads the environment
  HostEnvironment::enterPrivateDisplay(display_.socketPath());
}

void Program::makeDelegate() {
  stage_ = std::make_unique<PlayerStage>(
      display_, qmlEngine_, reducedMotion_,
      [this](QQuickItem& scene, PlaybackModel& playback, PlayerWindowController& player) {
        return std::make_unique<QuickPlayerOverlay>(qmlEngine_, scene, playback, player,
                                                    reducedMotion_, clock_, &PointerWatch::onScreen,
                                                    &pictures_);
      });
  QObject::connect(stage_.get(), &PlayerStage::dmabufsWithdrawn, stage_.get(),
                   [this] { doWithoutDmabufs(); });
  QObject::connect(stage_.get(), &PlayerStage::refusedByHost, stage_.get(),
                   [this] { doWithoutHost(); });
  AppDelegate::Parts parts;
  parts.makePlayback = [this] {
    return std::make_unique<PlaybackModel>(PlaybackModel::Parts{
        .api = MpvClientApi::libmpv(),
        .clock = clock_,
        .files = chooser_,
        .defaults = defaults_,
        .diagnosticsDirectory = diagnosticsDirectoryPath(),
        .makePlayer = [this](PlaybackModel& playback) -> std::unique_ptr<PlayerPresenting> {
          return std::make_unique<PlayerWindowController>(playback, *stage_, clock_);
        },
        .hasVulkanDevice = &hasVulkanDevice,
        .mayDecodeInHardware = mayDecodeInHardware(),
        .vulkanDevice = vulkanDevice_,
        .picturesFolder = QFile::encodeName(userPicturesDirectory()).toStdString(),
        .copyPicture = &putOntoClipboard,
        .tidyUp = &tidyUpAfterFilm,
        .pictureMaker = pictureMaker(),
        .findSoundDevices = [] { return findSoundDevices(MpvClientApi::libmpv()); },
        .films = &films_,
        .lineReader = {.file = QCoreApplication::applicationFilePath(),
                       .arguments = {QString::fromLatin1(kLinesOption)}},
        .engineFault = displayFault_});
  };
  parts.makeLibraryWindow = [this](PlaybackModel& playback, PlayerWindowController& player) {
    return makeLibraryWindow(playback, player);
  };
  delegate_ = std::make_unique<AppDelegate>(commandLine_, defaults_, storesOfOrvo(), clock_, parts);
  delegate_->playback().setPictureWay(pictureWay_);
  if (commandLine_.isPrivate) delegate_->playback().setPrivate(true);
  QObject::connect(delegate_.get(), &AppDelegate::readyToTerminate, qApp,
                   [] { QCoreApplication::exit(0); });
  // What is asked of the program from now on is for the next one.
  QObject::connect(delegate_.get(), &AppDelegate::willTerminate, &service_,
                   &ApplicationService::stop);
  QObject::connect(&signals_, &TerminationSignals::received, delegate_.get(), &AppDelegate::quit);
  settingsWindow_ = std::make_unique<ProgramWindow>(
      qmlEngine_, "SettingsWindow",
      QVariantMap{
          {QStringLiteral("settings"), QVariant::fromValue(&delegate_->playback().settings())},
          {QStringLiteral("pages"), QVariant::fromValue(&settingsPages_)},
          {QStringLiteral("devices"), QVariant::fromValue(&delegate_->playback().soundDevices())},
          {QStringLiteral("films"), QVariant::fromValue(&films_)}});
  makeCommands();
}

void Program::doWithoutHost() {
  pictureWay_.obstacle = PictureWay::Obstacle::refused;
  delegate_->playback().setPictureWay(pictureWay_);
  delegate_->playback().tell(QCoreApplication::translate(
      "Program",
      "The desktop refused the picture, so it is drawn without HDR; report this with what "
      "tromelo --display-selftest says."));
}

void Program::doWithoutDmabufs() {
  delegate_->player().restartVideo();
  // In the window that comes.
  delegate_->playback().tell(
      QCoreApplication::translate("Program",
                                  "Pictures can't be shown straight from your graphics card's "
                                  "memory, which makes playing slower; "
                                  "update its driver."));
}

void Program::makeCommands() {
  commands_ = std::make_unique<Commands>(Commands::Actions{
      .open = [this] { delegate_->playback().presentOpenPanel(); },
      .togglePrivacy =
          [this] { delegate_->playback().setPrivate(!delegate_->playback().isPrivate()); },
      .quit = [this] { delegate_->quit(); },
      // An open window stays at its page.
      .showSettings =
          [this] {
            const bool isOpen = settingsWindow_->isOpen();
            showSettings(isOpen ? settingsPages_.page() : SettingsPages::General);
          },
      .showLibrary = [this] { delegate_->showLibraryWindow(); },
      .showShortcuts = [this] { showSettings(SettingsPages::Shortcuts); },
      .showAbout = [this] { showAbout(); },
  });
}

void Program::showSettings(SettingsPages::Page page) {
  settingsPages_.setPage(page);
  settingsWindow_->show();
}

void Program::showAbout() {
  if (!facts_) {
    facts_ = std::make_unique<AboutFacts>(delegate_->playback().engine(), reportOf(pictureWay_),
                                          &vulkanLines);
    aboutWindow_ = std::make_unique<ProgramWindow>(
        qmlEngine_, "AboutWindow",
        QVariantMap{{QStringLiteral("facts"), QVariant::fromValue(facts_.get())}});
  }
  aboutWindow_->show();
}

std::unique_ptr<ControlledWindow> Program::makeLibraryWindow(PlaybackModel& playback,
                                                             PlayerWindowController& player) {
  auto library = std::make_unique<LibraryWindow>(qmlEngine_, playback, player, *commands_,
                                                 defaults_, reducedMotion_);
  QObject::connect(library.get(), &LibraryWindow::closed, delegate_.get(),
                   [this] { handleLibraryClosed(); });
  return library;
}

void Program::connectService() {
  QObject::connect(&service_, &ApplicationService::activated, delegate_.get(),
                   [this] { bringToFront(); });
  QObject::connect(&service_, &ApplicationService::privacyAsked, delegate_.get(),
                   [this] { delegate_->playback().setPrivate(true); });
  QObject::connect(&service_, &ApplicationService::filesOpened, delegate_.get(),
                   [this](const QList<QUrl>& files, std::optional<double> start) {
                     delegate_->applicationOpen(files, start);
                     delegate_->player().bringToFront();
                   });
}

void Program::tellOfStorageErrors() {
  defaults_.onError([this](const QString& sentence) { tellOfStorage(sentence); });
}

void Program::tellOfStorage(const QString& sentence) {
  std::fprintf(stderr, "%s\n", qPrintable(sentence));
  if (!delegate_->playback().isShuttingDown()) delegate_->playback().tell(sentence);
}

void Program::tellOfMissingLog() {
  const QString logs = diagnosticsDirectoryPath();
  if (const QFileInfo folder(logs); !folder.isDir() || !folder.isWritable())
    std::fprintf(stderr, "The log of playback can't be written; make %s a folder that is yours.\n",
                 qPrintable(logs));
}

void Program::offerToDesktop() {
  const PlaybackModel& playback = delegate_->playback();
  QObject::connect(&playback, &PlaybackModel::remembered, &addToDesktopRecents);
  QObject::connect(&playback, &PlaybackModel::forgotten, &removeFromDesktopRecents);
}

void Program::offerMediaControls() {
  const auto bus = sessionBus();
  if (!bus) return;
  const auto stop = [this] {
    PlayerWindowController& player = delegate_->player();
    player.hasWindow() ? player.close() : player.stopPlayback();
  };
  mediaControls_ = std::make_unique<MprisService>(
      *bus, delegate_->playback(),
      MprisShell{.raise = [this] { bringToFront(); },
                 .quit = [this] { delegate_->quit(); },
                 .stop = stop,
                 .toggleFullscreen = [this] { delegate_->player().toggleFullscreen(); }});
}

void Program::offerPictures() {
  const PlaybackModel& playback = delegate_->playback();
  const auto tell = [this, &playback] {
    const bool hasPictures = playback.isLoaded() && playback.facts().hasPicture();
    pictures_.setFilm(hasPictures ? pathFromFileUrl(playback.lastURL()) : std::string(),
                      playback.duration());
  };
  for (const auto changed : {&PlaybackState::isLoadedChanged, &PlaybackState::videoSizeChanged,
                             &PlaybackState::durationChanged, &PlaybackState::lastURLChanged})
    QObject::connect(&playback, changed, &pictures_, tell);
  QObject::connect(&films_, &FilmMemory::forgotAll, &pictures_, &PictureSource::forgetAll);
  const auto keep = [this, &playback] { pictures_.setKeepsOnDisk(!playback.isPrivate()); };
  QObject::connect(&playback, &PlaybackState::isPrivateChanged, &pictures_, keep);
  keep();
}

void Program::keepAwake() {
  std::vector<AskForInhibition> ways;
  if (const auto bus = sessionBus()) ways = {portalInhibition(*bus), screenSaverInhibition(*bus)};
  ways.push_back(hostInhibition());
  ways.push_back(serverInhibition(clock_));
  idleInhibitor_ = std::make_unique<IdleInhibitor>(std::move(ways), clock_);
  PlaybackModel& playback = delegate_->playback();
  const auto decide = [this, &playback] {
    idleInhibitor_->setInhibited(playback.keepsScreenAwake());
  };
  for (const auto changed : {&PlaybackState::isLoadedChanged, &PlaybackState::isPausedChanged,
                             &PlaybackState::videoSizeChanged})
    QObject::connect(&playback, changed, idleInhibitor_.get(), decide);
  QObject::connect(&playback, &PlaybackModel::isShuttingDownChanged, idleInhibitor_.get(), decide);
}

void Program::bringToFront() {
  // A library that is covered or minimised comes forward too.
  delegate_->applicationShouldHandleReopen(delegate_->player().isRevealed());
  delegate_->player().bringToFront();
}

void Program::startReport() {
  report_ = std::make_unique<StateReport>(
      delegate_->playback(), delegate_->player(), clock_, [this] { return windowText(); }, stdout);
  QObject::connect(stage_.get(), &PlayerStage::hostResized, report_.get(), &StateReport::schedule);
}

void Program::handleLibraryClosed() {
  // The desktop brings a hidden program back by its name on the bus. Without a bus nothing would.
  if (role_ == ApplicationService::Role::alone && !delegate_->player().hasWindow())
    delegate_->quit();
}

QString Program::windowText() {
  if (!delegate_->player().hasWindow()) return QStringLiteral("none");
  if (!delegate_->player().isRevealed()) return QStringLiteral("hidden");
  const QSize size = stage_->hostPixelSize();
  return QStringLiteral("revealed %1x%2").arg(size.width()).arg(size.height());
}

}  // namespace tromelo
