#pragma once

#include <QList>
#include <QUrl>

class QMimeData;

namespace tromelo {

/// The local files and folders of a drag, in its order; web links and text are passed over. Names
/// keep their bytes.
QList<QUrl> draggedFiles(const QMimeData& data);

}  // namespace tromelo
