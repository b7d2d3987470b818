#pragma once

#include <QtQml/qqmlregistration.h>

#include "settings/PlayerSettings.h"

namespace tromelo {

/// Names for QML: the objects themselves know nothing of it.

struct RgbaColorForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::RgbaColor)
  QML_VALUE_TYPE(rgbaColor)
  QML_CONSTRUCTIBLE_VALUE
};

struct PlayerSettingsForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::PlayerSettings)
  QML_NAMED_ELEMENT(PlayerSettings)
  QML_UNCREATABLE("The program has one.")
};

}  // namespace tromelo
