#include "player/DraggedFiles.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>

#include "platform/FilePath.h"
#include "playback/FileChooser.h"

namespace tromelo {

namespace {

/// On a share, say, which can have a local path: who takes it asks for that.
bool mayBeFileElsewhere(const QUrl& url) {
  const QString scheme = url.scheme();
  const bool hasPlace = !url.host().isEmpty() || url.path().startsWith(u'/');
  return !scheme.isEmpty() && hasPlace && !url.isLocalFile() && scheme != u"http" &&
         scheme != u"https";
}

}  // namespace

QList<QUrl> draggedFiles(const QMimeData& data) {
  QList<QUrl> files;
  for (const QByteArray& line : data.data(QStringLiteral("text/uri-list")).split('\n')) {
    const QByteArray text = line.trimmed();
    if (text.isEmpty() || text.startsWith('#')) continue;
    const QUrl url = urlFromEncoded(text);
    if (!pathFromFileUrl(url).empty() || mayBeFileElsewhere(url)) files.append(url);
  }
  return files;
}

QList<QUrl> acceptDraggedFiles(QDropEvent& event) {
  QList<QUrl> files;
  // Copying is all that is done with files: one that can only be moved must not be taken.
  if (event.possibleActions().testFlag(Qt::CopyAction)) files = draggedFiles(*event.mimeData());
  event.setDropAction(files.isEmpty() ? Qt::IgnoreAction : Qt::CopyAction);
  event.setAccepted(!files.isEmpty());
  return files;
}

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
