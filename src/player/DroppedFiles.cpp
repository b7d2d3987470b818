#include "player/DroppedFiles.h"

#include <QCoreApplication>
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
    return QCoreApplication::translate("DroppedFiles", "Subtitles: %1")
        .arg(lastPathComponentWithoutExtension(subtitles.first()));
  if (videos.isEmpty()) return {};
  if (videos.size() == 1) return QCoreApplication::translate("DroppedFiles", "Added to queue");
  const int count = static_cast<int>(videos.size());
  return QCoreApplication::translate("DroppedFiles", "Added %n videos to queue", "", count);
}

}  // namespace tromelo
