#include "player/ShortcutKeysWidth.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace tromelo {

double shortcutKeysWidth(const QList<ShortcutGroup>& groups, const QFont& font, double least,
                         double column) {
  const QFontMetricsF metrics(font);
  double widest = least;
  for (const ShortcutGroup& group : groups)
    for (const Shortcut& shortcut : group.items)
      widest = std::max(widest, std::ceil(metrics.horizontalAdvance(shortcut.keys)));
  return std::min(widest, std::max(column / 2, 0.0));
}

}  // namespace tromelo
