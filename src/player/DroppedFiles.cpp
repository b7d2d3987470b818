#include "player/DroppedFiles.h"

#include <QFileInfo>

#include "platform/FilePath.h"
#include "playback/SubtitleExtensions.h"

namespace tromelo {

DroppedFiles DroppedFiles::sort(const QList<QUrl>& urls) {
  DroppedFiles files;
  for (const QUrl& url : urls) {
    const QString extension = QFileInfo(lastPathComponent(url)).suffix().toLower();
    (subtitleExtensions().contains(extension) ? files.subtitles : files.videos).append(url);
  }
  return files;
}

QString DroppedFiles::toast() const {
  if (!subtitles.isEmpty())
    return QStringLiteral("Subtitles: ") + lastPathComponentWithoutExtension(subtitles.first());
  if (videos.isEmpty()) return {};
  if (videos.size() == 1) return QStringLiteral("Added to queue");
  return QStringLiteral("Added %1 videos to queue").arg(videos.size());
}

}  // namespace tromelo
