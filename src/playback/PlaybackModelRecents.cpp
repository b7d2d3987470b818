#include "platform/FilePath.h"
#include "platform/UserDefaults.h"
#include "playback/PlaybackModel.h"

namespace tromelo {

namespace {

const QString kRecentFiles = QStringLiteral("recentFiles");

}  // namespace

void PlaybackModel::loadRecents() {
  recentFiles_ = RecentFiles(defaults_.value(kRecentFiles));
  existence_.ask(recentFiles_.unknown());
}

void PlaybackModel::takeAnswers(const QList<FileExistence::Answer>& answers) {
  for (const auto& [file, exists] : answers) recentFiles_.found(file, exists);
  recents_ = recentFiles_.files();
}

void PlaybackModel::remember(const std::string& path) {
  recentFiles_.remember(fileUrlFromPath(path));
  publishRecents();
}

void PlaybackModel::removeRecent(const QUrl& file) {
  recentFiles_.remove(fileUrlFromPath(pathFromFileUrl(file)));
  publishRecents();
}

void PlaybackModel::publishRecents() {
  recents_ = recentFiles_.files();
  defaults_.set(kRecentFiles, recentFiles_.stored());
}

}  // namespace tromelo
