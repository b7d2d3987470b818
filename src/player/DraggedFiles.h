#pragma once

#include <QList>
#include <QUrl>

class QDropEvent;
class QMimeData;

namespace tromelo {

/// The files and folders of a drag, in its order, by the addresses that it gives them (smb://…
/// too); web links and text are passed over. Names keep their bytes.
QList<QUrl> draggedFiles(const QMimeData& data);

/// Answers a drag that moves or is let go: its files would be copied, anything else is refused.
/// Gives the files, none where it was refused.
QList<QUrl> acceptDraggedFiles(QDropEvent& event);

}  // namespace tromelo
