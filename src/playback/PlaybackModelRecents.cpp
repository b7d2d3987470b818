#include "platform/FilePath.h"
#include "platform/UserDefaults.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

const QString kRecentFiles = QStringLiteral("recentFiles");

}  // namespace

void PlaybackModel::loadRecents() {
  recentFiles_ = RecentFiles(defaults_.value(kRecentFiles));
  showRecents();
  existence_.ask(recentFiles_.unknown());
}

void PlaybackModel::takeAnswers(const QList<FileExistence::Answer>& answers) {
  for (const auto& [file, exists] : answers) recentFiles_.found(file, exists);
  showRecents();
}

void PlaybackModel::takePath(const std::string& path) {
  currentPath_ = path;
  lastURL_ = fileUrlFromPath(path);
  hardware_.pathReported(path);
  if (isLoaded_) remember(path);
  showLinesOfSubtitles();
}

/// The engine doesn't report a path again that is that of the file before.
void PlaybackModel::askForPath() {
  engine_.readProperty("path", [this, entry = entry_](const std::optional<std::string>& path) {
    if (path && isLoaded_ && entry == entry_ && !currentPath_) takePath(*path);
  });
}

void PlaybackModel::remember(const std::string& path) {
  marks_.fileKnown(path, filmKeeper_.film());
  if (isPrivate_) return;
  const QUrl file = fileUrlFromPath(path);
  recentFiles_.remember(file);
  storeRecents();
  Q_EMIT remembered(file);
}

void PlaybackModel::removeRecent(const QUrl& url) {
  const QUrl file = fileUrlFromPath(pathFromFileUrl(url));
  recentFiles_.remove(file);
  storeRecents();
  if (films_) films_->forget(pathFromFileUrl(file));
  Q_EMIT forgotten(file);
}

void PlaybackModel::storeRecents() {
  showRecents();
  defaults_.set(kRecentFiles, recentFiles_.stored());
}

void PlaybackModel::showRecents() {
  recents_ = recentFiles_.files();
  hasNoRecents_ = recentFiles_.isEmpty();
}

}  // namespace tromelo
