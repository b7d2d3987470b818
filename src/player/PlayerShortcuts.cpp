#include "player/PlayerShortcuts.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "platform/PlatformWording.h"
#include "player/PlayerActions.h"

namespace tromelo {

namespace {

QString shown(const char* text) { return platformWording(PlayerActions::tr(text)); }

}  // namespace

QList<ShortcutGroup> PlayerShortcuts::groups() {
  QList<ShortcutGroup> groups;
  for (const PlayerActions::Group& group : PlayerActions::groups) {
    if (!group.title) continue;
    ShortcutGroup told{shown(group.title), {}};
    for (const PlayerActions::Line& line : group.lines)
      told.items.append({shown(line.keys), shown(line.meaning)});
    groups.append(told);
  }
  return groups;
}

double PlayerShortcuts::keysWidth(const QList<ShortcutGroup>& groups, const QFont& font,
                                  double least, double column) {
  const QFontMetricsF metrics(font);
  double widest = least;
  for (const ShortcutGroup& group : groups)
    for (const Shortcut& shortcut : group.items)
      widest = std::max(widest, std::ceil(metrics.horizontalAdvance(shortcut.keys)));
  return std::min(widest, std::max(column / 2, 0.0));
}

}  // namespace tromelo
