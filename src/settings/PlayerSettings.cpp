#include "settings/PlayerSettings.h"

#include <span>
#include <string>

#include "engine/MpvEngine.h"
#include "platform/UserDefaults.h"

namespace tromelo {

namespace {

struct EngineRow {
  const char* property;
  std::string (*value)(const PlayerSettings&);
};

/// The controls' delay is no concern of the engine's.
constexpr std::span<const EngineRow> kEngineRows{};

}  // namespace

PlayerSettings::PlayerSettings(UserDefaults& defaults, QObject* parent)
    : QObject(parent), defaults_(defaults) {
  const QJsonObject stored = defaults_.value(QStringLiteral("playerSettings")).toObject();
  autoHideDelay_ = stored.value(QStringLiteral("autoHideDelay")).toDouble(autoHideDelay_);
}

void PlayerSettings::setAutoHideDelay(double seconds) {
  autoHideDelay_ = seconds;
  Q_EMIT changed();
}

void PlayerSettings::apply(MpvEngine& engine) const {
  for (const EngineRow& row : kEngineRows) engine.setProperty(row.property, row.value(*this));
}

}  // namespace tromelo
