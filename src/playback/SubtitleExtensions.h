#pragma once

#include <QStringList>

namespace tromelo {

/// File-name extensions of subtitle files, lower case, without dot.
const QStringList& subtitleExtensions();

}  // namespace tromelo
