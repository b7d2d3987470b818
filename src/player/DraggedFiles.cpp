#include "player/DraggedFiles.h"

#include <QDropEvent>
#include <QMimeData>

#include "platform/FilePath.h"

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

}  // namespace tromelo
