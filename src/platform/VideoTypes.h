#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace tromelo {

/// The MIME types of what the program opens, as the desktop file lists them.
QStringList openedMimeTypes();

/// The endings that the desktop gives the videos among these, lower case, without dot. From any
/// thread.
QSet<QString> videoSuffixes();

}  // namespace tromelo
