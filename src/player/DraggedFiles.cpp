#include "player/DraggedFiles.h"

#include <QDropEvent>
#include <QMimeData>

#include "platform/FilePath.h"

namespace tromelo {

namespace {

/// Some programs leave bytes above ASCII as they are; decoded, those that aren't UTF-8 were lost.
QUrl urlOf(const QByteArray& line) {
  QByteArray encoded;
  for (const char byte : line) {
    if (static_cast<unsigned char>(byte) < 0x80)
      encoded += byte;
    else
      encoded += '%' + QByteArray(1, byte).toHex().toUpper();
  }
  return QUrl::fromEncoded(encoded);
}

}  // namespace

QList<QUrl> draggedFiles(const QMimeData& data) {
  QList<QUrl> files;
  for (const QByteArray& line : data.data(QStringLiteral("text/uri-list")).split('\n')) {
    const QByteArray text = line.trimmed();
    if (text.isEmpty() || text.startsWith('#')) continue;
    if (const QUrl url = urlOf(text); !pathFromFileUrl(url).empty()) files.append(url);
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
