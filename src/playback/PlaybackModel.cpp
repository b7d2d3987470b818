#include "playback/PlaybackModel.h"

#include <QDir>
#include <QPointer>
#include <cmath>
#include <utility>

#include "engine/MpvClientApi.h"
#include "platform/FilePath.h"
#include "platform/NumberText.h"
#include "playback/EngineErrors.h"
#include "playback/FileChooser.h"

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
      engine_(parts.api),
      settings_(parts.defaults),
      screenshots_(engine_, parts.picturesFolder),
      copyPicture_(std::move(parts.copyPicture)),
      marks_(parts.films),
      films_(parts.films),
      filmKeeper_(parts.films, parts.clock),
      existence_(std::move(parts.fileExists),
                 [this](const QList<FileExistence::Answer>& answers) { takeAnswers(answers); }),
      localFiles_(std::move(parts.mountedPath)) {
  connect(&marks_, &Bookmarks::changed, this, [this] { bookmarks_ = marks_.all(); });
  hardware_.softwarePaths = storedSoftwareDecodePaths(defaults_);
  loadRecents();
  filmKeeper_.setResumes(settings_.resumesFilms());
  connect(&settings_, &PlayerSettings::changed, this,
          [this] { filmKeeper_.setResumes(settings_.resumesFilms()); });
  startEngine(parts);
  settings_.apply(engine_);
  // Queued: the change is announced before it is made.
  settingsObserver_ = connect(
      &settings_, &PlayerSettings::willChange, this, [this] { settings_.apply(engine_); },
      Qt::QueuedConnection);
}

PlaybackModel::~PlaybackModel() = default;

void PlaybackModel::startEngine(const Parts& parts) {
  QDir().mkpath(parts.diagnosticsDirectory);
  engine_.onEvent = [model = QPointer(this)](const MpvEvent& received) {
    if (model) model->handleEvent(received);
  };
  engine_.prepareFile = filmKeeper_.prepareFile();
  if (const auto error = initializeEngine(parts)) {
    status_ = *error;
    errorMessage_ = *error;
  }
}

std::optional<QString> PlaybackModel::initializeEngine(const Parts& parts) {
  if (!parts.engineFault.isEmpty()) return parts.engineFault;
  const auto error = engine_.initialize(parts.diagnosticsDirectory, parts.vulkanDevice);
  return error ? std::optional(engineErrorText(*error)) : std::nullopt;
}

PlayerPresenting& PlaybackModel::player() {
  if (!player_) player_ = makePlayer_(*this);
  return *player_;
}

void PlaybackModel::setShuttingDown(bool shuttingDown) {
  if (shuttingDown) filmKeeper_.keep();
  if (std::exchange(isShuttingDown_, shuttingDown) != shuttingDown) Q_EMIT isShuttingDownChanged();
}

void PlaybackModel::open(const QUrl& url, std::optional<double> startAt) {
  if (!engine_.hasHandle()) return;
  title_ = lastPathComponentWithoutExtension(url);
  status_ = QStringLiteral("Opening media");
  errorMessage_ = QString();
  player().setAwaitingVideo(true);
  player().setVideoReady(false);
  progress_.opened();
  load(url, "replace", startAt);
  engine_.setProperty("pause", "no");
}

void PlaybackModel::open(const QList<QUrl>& urls) {
  if (urls.isEmpty()) return;
  open(urls.first());
  append(urls.sliced(1));
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
  // A player window that doesn't come now must not say it later.
  if (someFollow || player().hasWindow()) return tell(sentence);
  errorMessage_ = sentence;
  player().showLibrary();
}

void PlaybackModel::enqueue(const QList<QUrl>& urls) {
  if (!isLoaded_ && queue_.get().isEmpty()) {
    open(urls);
  } else {
    append(urls);
  }
}

void PlaybackModel::append(const QList<QUrl>& urls) {
  for (const QUrl& url : urls) {
    progress_.appended();
    load(url, "append", {});
  }
}

void PlaybackModel::load(const QUrl& url, const char* mode, std::optional<double> startAt) {
  const std::string path = pathFromFileUrl(url);
  if (startAt && !std::isfinite(*startAt)) startAt.reset();
  engine_.command(
      {"loadfile", path, mode, "-1", fileOptions(startAt, hardware_.softwarePaths.contains(path))});
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
