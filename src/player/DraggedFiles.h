#pragma once

#include <QList>
#include <QString>
#include <QUrl>

class QDropEvent;
class QMimeData;

namespace tromelo {

/// The files and folders of a drag, in its order, by the addresses that it gives them (smb://…
/// too); web links and text are passed over. Names keep their bytes, which Qt Quick's DropArea
/// decodes.
QList<QUrl> draggedFiles(const QMimeData& data);

/// Answers a drag that moves or is let go: its files would be copied, anything else is refused.
/// Gives the files, none where it was refused.
QList<QUrl> acceptDraggedFiles(QDropEvent& event);

/// What was dropped on the player, sorted into subtitles for the present file and videos for the
/// queue, each in the order of the drag.
struct DroppedFiles {
  QList<QUrl> subtitles;
  QList<QUrl> videos;

  static DroppedFiles sort(const QList<QUrl>& urls);

  /// What the person is told; empty when there is nothing to tell.
  QString toast() const;
};

}  // namespace tromelo
