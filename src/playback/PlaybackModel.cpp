#include "playback/PlaybackModel.h"

#include <QDir>
#include <QPointer>
#include <QRandomGenerator>
#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/MpvClientApi.h"
#include "platform/FilePath.h"
#include "platform/NumberText.h"
#include "playback/EngineErrors.h"
#include "playback/FileChooser.h"
#include "playback/PlaylistFile.h"

namespace tromelo {

namespace {

/// The options that go with one file when it is loaded, as the engine reads them. `start` is in
/// seconds.
std::string fileOptions(std::optional<double> start, bool decodesInSoftware) {
  std::string options;
  if (start) options = "start=" + numberText(*start);
  if (decodesInSoftware) options += options.empty() ? "hwdec=no" : ",hwdec=no";
  return options;
}

}  // namespace

PlaybackModel::PlaybackModel(Parts parts, QObject* parent)
    : PlaybackState(parent),
      clock_(parts.clock),
      files_(parts.files),
      defaults_(parts.defaults),
      makePlayer_(std::move(parts.makePlayer)),
      hasVulkanDevice_(std::move(parts.hasVulkanDevice)),
      mayDecodeInHardware_(parts.mayDecodeInHardware),
      tidyUp_(std::move(parts.tidyUp)),
      diagnosticsDirectory_(parts.diagnosticsDirectory),
      vulkanDevice_(parts.vulkanDevice),
      engineFault_(parts.engineFault),
      engine_(parts.api),
      settings_(parts.defaults),
      soundDevices_(engine_, settings_, std::move(parts.findSoundDevices)),
      screenshots_(engine_, parts.picturesFolder),
      copyPicture_(std::move(parts.copyPicture)),
      marks_(parts.films),
      films_(parts.films),
      filmKeeper_(parts.films, parts.clock),
      trial_(parts.diagnosticsDirectory + QStringLiteral("/decoding"),
             [this](bool isNew) { takeFall(isNew); }),
      watch_(parts.clock, watchedEngine()),
      lostSound_(parts.clock, engine_, soundDevices_, [this] { noSound(); }),
      adjustments_(parts.defaults),
      barsFinder_(std::move(parts.pictureMaker), parts.clock),
      shuffle_([](qsizetype end) { return QRandomGenerator::global()->bounded(end); }),
      existence_(std::move(parts.fileExists),
                 [this](const QList<FileExistence::Answer>& answers) { takeAnswers(answers); }),
      localFiles_(std::move(parts.mountedPath)),
      lines_(std::move(parts.lineReader), parts.clock) {
  connect(&marks_, &Bookmarks::changed, this, [this] { bookmarks_ = marks_.all(); });
  hardware_.softwarePaths = storedSoftwareDecodePaths(defaults_);
  if (films_) connect(films_, &FilmMemory::forgotAll, this, [this] { trial_.forgetAll(); });
  loadRecents();
  filmKeeper_.setResumes(settings_.resumesFilms());
  connect(&settings_, &PlayerSettings::changed, this,
          [this] { filmKeeper_.setResumes(settings_.resumesFilms()); });
  filmKeeper_.setForAll(adjustments_.forAll());
  connect(this, &PlaybackState::infoChanged, this, &PlaybackModel::updateMotion);
  startEngine();
  settings_.apply(engine_);
  // Queued: the change is announced before it is made.
  settingsObserver_ = connect(
      &settings_, &PlayerSettings::willChange, this, [this] { settings_.apply(engine_); },
      Qt::QueuedConnection);
}

PlaybackModel::~PlaybackModel() = default;

void PlaybackModel::startEngine() {
  QDir().mkpath(diagnosticsDirectory_);
  engine_.onEvent = [model = QPointer(this)](const MpvEvent& received) {
    if (model) model->handleEvent(received);
  };
  engine_.onTold = [this] { watch_.told(); };
  engine_.prepareFile = filmKeeper_.prepareFile(mayDecodeInHardware_ ? trial_.preparation()
                                                                     : FilmKeeper::Preparation());
  if (const auto error = initializeEngine()) {
    status_ = *error;
    errorMessage_ = *error;
  }
  // Each try makes a Vulkan device and frees it while the picture's output is at work with another,
  // which takes time, and which Vulkan's loader doesn't always survive.
  if (!mayDecodeInHardware_) engine_.setProperty("hwdec", "no");
}

std::optional<QString> PlaybackModel::initializeEngine() {
  if (!engineFault_.isEmpty()) return engineFault_;
  const auto error = engine_.initialize(diagnosticsDirectory_, vulkanDevice_);
  return error ? std::optional(engineErrorText(*error)) : std::nullopt;
}

PlayerPresenting& PlaybackModel::player() {
  if (!player_) player_ = makePlayer_(*this);
  return *player_;
}

void PlaybackModel::setShuttingDown(bool shuttingDown) {
  if (shuttingDown) {
    catchUp();
    filmKeeper_.keep();
    trial_.ended();
  }
  if (std::exchange(isShuttingDown_, shuttingDown) != shuttingDown) Q_EMIT isShuttingDownChanged();
}

void PlaybackModel::open(const QUrl& url, std::optional<double> startAt) {
  open(QList<QUrl>{url}, startAt);
}

void PlaybackModel::playFiles(const QUrl& url, const QList<QUrl>& others,
                              std::optional<double> startAt) {
  if (!engine_.hasHandle()) return;
  title_ = lastPathComponentWithoutExtension(url);
  status_ = QStringLiteral("Opening media");
  errorMessage_ = QString();
  player().setAwaitingVideo(true);
  player().setVideoReady(false);
  progress_.opened();
  load(url, "replace", -1, startAt);
  awaitFile(pathFromFileUrl(url));
  setPause(false);
  append(others);
}

void PlaybackModel::open(const QList<QUrl>& urls, std::optional<double> startAt) {
  if (urls.isEmpty()) return;
  reading_.drop();
  withOpenedLists(urls, [this, startAt](const QList<QUrl>& files) {
    playFiles(files.first(), files.sliced(1), startAt);
  });
}

void PlaybackModel::withOpenedLists(const QList<QUrl>& files,
                                    const std::function<void(const QList<QUrl>& files)>& use) {
  if (std::ranges::none_of(files, &isPlaylistFile)) return use(files);
  reading_.run(
      [files] { return openLists(files); },
      [this, use, name = lastPathComponent(files.first())](const OpenedLists& opened) {
        const QString skipped = opened.sentence();
        if (!opened.files.isEmpty()) {
          use(opened.files);
          if (!skipped.isEmpty()) tell(skipped);
        } else {
          refuse(skipped.isEmpty() ? tr("There is nothing to play in %1.").arg(name) : skipped);
        }
      });
}

void PlaybackModel::openFiles(const QList<QUrl>& addresses) {
  withLocalFiles(addresses, [this](const QList<QUrl>& files) { open(files); });
}

void PlaybackModel::withLocalFiles(const QList<QUrl>& addresses,
                                   const std::function<void(const QList<QUrl>& files)>& use) {
  localFiles_.find(addresses, [this, use](const QList<QUrl>& files, bool areAll) {
    if (!files.isEmpty()) use(files);
    if (!areAll) refuseFilesElsewhere(!files.isEmpty());
  });
}

void PlaybackModel::refuseFilesElsewhere(bool someFollow) {
  const QString sentence = tr("Tromelo plays local files only.");
  someFollow ? tell(sentence) : refuse(sentence);
}

/// Nothing comes of what was asked for.
void PlaybackModel::refuse(const QString& sentence) {
  // A player window that doesn't come now must not say it later.
  if (player().hasWindow()) return tell(sentence);
  errorMessage_ = sentence;
  player().showLibrary();
}

void PlaybackModel::enqueue(const QList<QUrl>& urls) {
  if (!isLoaded_ && queue_.get().isEmpty()) {
    open(urls);
  } else {
    withOpenedLists(urls, [this](const QList<QUrl>& files) { append(files); });
  }
}

void PlaybackModel::insert(const QList<QUrl>& urls, qint64 gap, bool plays) {
  if (!isLoaded_ && queue_.get().isEmpty()) return open(urls);
  withOpenedLists(urls, [this, gap, plays](const QList<QUrl>& files) {
    for (qsizetype i = 0; i < files.size(); ++i) {
      progress_.appended();
      load(files[i], "insert-at", gap + i, {});
    }
    if (plays) playQueueItem(gap);
  });
}

void PlaybackModel::append(const QList<QUrl>& urls) {
  for (const QUrl& url : urls) {
    progress_.appended();
    load(url, "append", -1, {});
  }
}

void PlaybackModel::load(const QUrl& url, const char* mode, qint64 place,
                         std::optional<double> startAt) {
  const std::string path = pathFromFileUrl(url);
  if (startAt && !std::isfinite(*startAt)) startAt.reset();
  engine_.command({"loadfile", path, mode, std::to_string(place),
                   fileOptions(startAt, hardware_.softwarePaths.contains(path))});
}

void PlaybackModel::presentOpenPanel() {
  files_.chooseFiles({.prompt = tr("Play"), .allowsSeveral = true, .extensions = {}},
                     [model = QPointer(this)](const QList<QUrl>& urls) {
                       if (model) model->open(urls);
                     });
}

void PlaybackModel::presentQueuePanel() {
  files_.chooseFiles({.prompt = tr("Add to Queue"), .allowsSeveral = true, .extensions = {}},
                     [model = QPointer(this)](const QList<QUrl>& urls) {
                       if (model) model->enqueue(urls);
                     });
}

void PlaybackModel::presentSubtitleFilePanel() {
  files_.chooseFiles(
      {.prompt = tr("Add Subtitle"), .allowsSeveral = false, .extensions = subtitleExtensions()},
      [model = QPointer(this)](const QList<QUrl>& urls) {
        if (model) model->addSubtitle(urls.first());
      });
}

void PlaybackModel::tell(const QString& message) {
  errorMessage_ = message;
  toast_ = message;
  showWaitingToast();
}

void PlaybackModel::showWaitingToast() {
  if (!toast_.isEmpty() && player().hasWindow()) player().showToast(std::exchange(toast_, {}));
}

void PlaybackModel::reportPlaybackError(const QString& message) {
  errorMessage_ = message;
  status_ = message;
  buffering_ = Buffering::unavailable;
}

}  // namespace tromelo
