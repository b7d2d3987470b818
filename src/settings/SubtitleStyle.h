#pragma once

#include <QString>
#include <string>
#include <vector>

#include "settings/RgbaColor.h"
#include "settings/SubtitleBorderStyle.h"

namespace tromelo {

/// How subtitles are drawn, unless the person says otherwise.
struct SubtitleStyle {
  QString font = QStringLiteral("Helvetica Neue");  // a family; the nearest one where it is missing
  double size = 44.0;                               // in the engine's unit
  RgbaColor color{1, 1, 1};
  RgbaColor outlineColor{0, 0, 0};
  SubtitleBorderStyle borderStyle = SubtitleBorderStyle::outline;
  bool bold = false;
  bool overridesStyled = false;  // also where the subtitles bring a style of their own

  friend bool operator==(const SubtitleStyle&, const SubtitleStyle&) = default;
};

/// One write to the engine.
struct EngineProperty {
  std::string name;
  std::string value;

  friend bool operator==(const EngineProperty&, const EngineProperty&) = default;
};

/// All that makes the engine draw in this style, in the order in which it has to be written.
std::vector<EngineProperty> engineProperties(const SubtitleStyle& style);

}  // namespace tromelo
