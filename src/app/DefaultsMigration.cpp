#include "app/DefaultsMigration.h"

#include <algorithm>
#include <array>

namespace tromelo {

std::vector<UserDefaults> storesOfOrvo() {
  return {UserDefaults::named(QStringLiteral("org.orvo.Orvo")),
          UserDefaults::named(QStringLiteral("Orvo"))};
}

void migrateDefaultsFromOrvo(UserDefaults& defaults, std::span<const UserDefaults> sources) {
  const QString migrated = QStringLiteral("migratedFromOrvo");
  if (defaults.boolean(migrated)) return;
  // First of all: a migration that finds nothing, or fails, is not tried again.
  defaults.set(migrated, true);
  const std::array keys{QStringLiteral("recentFiles"), QStringLiteral("playerSettings"),
                        QStringLiteral("softwareDecodeFiles")};
  for (const QString& key : keys) {
    if (defaults.contains(key)) continue;
    const auto source = std::ranges::find_if(
        sources, [&key](const UserDefaults& candidate) { return candidate.contains(key); });
    if (source != sources.end()) defaults.set(key, source->value(key));
  }
}

}  // namespace tromelo
