#pragma once

#include <QFont>

#include "player/PlayerShortcuts.h"

namespace tromelo {

/// How much of a column the keys take, the same for all groups: `least`, or more where their names
/// are longer, but at most half of the column. Lengths in points.
double shortcutKeysWidth(const QList<ShortcutGroup>& groups, const QFont& font, double least,
                         double column);

}  // namespace tromelo
