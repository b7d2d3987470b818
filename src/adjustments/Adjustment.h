#pragma once

#include <QString>
#include <span>
#include <string>
#include <vector>

#include "engine/MpvRequest.h"

namespace tromelo {

/// What a person changes about a film: how it looks, sounds and is subtitled.
enum class Adjustment {
  aspect,
  zoom,
  moveAcross,
  moveDown,
  rotation,
  mirror,
  crop,
  deinterlacing,
  brightness,
  contrast,
  saturation,
  gamma,
  toneMapping,
  smoothMotion,
  nightMode,
  downmix,
  secondSubtitle,
  subtitleScale,
  subtitlePosition,
  subtitlesWithoutNotes,
  subtitleBrightness,
};

enum class AdjustmentGroup { picture, sound, subtitles };

/// One of the values that are offered.
struct AdjustmentChoice {
  const char* value;  // as it is stored
  const char* name;   // for people, who read its translation
};

/// Of numbers.
struct AdjustmentRange {
  double least;
  double most;
  double step;
  double asMade;
};

/// All there is to say about an adjustment. What plays when nobody has changed anything is "as
/// made".
struct AdjustmentRow {
  enum class Kind { choice, number, crop, track };
  /// What the engine is told.
  using Tell = std::vector<MpvPropertyWrite>(const std::string& value);

  Adjustment adjustment;
  AdjustmentGroup group;
  const char* key;   // by which it is stored
  const char* name;  // for people, who read its translation
  Kind kind = Kind::choice;
  std::vector<AdjustmentChoice> choices = {};  // the first is as made
  AdjustmentRange range = {};
  QString (*text)(double number) = nullptr;
  const char* option = nullptr;  // the engine's, that takes the value as it is stored,
  Tell* tell = nullptr;          // or this; neither where somebody else tells it
  /// An option that older engines lack, without which it can't be done; none: all have it.
  const char* needs = nullptr;
  /// Whether it makes sense for films of all kinds.
  bool suitsAll = true;

  bool isSwitch() const { return kind == Kind::choice && choices.size() == 2; }
};

/// In the order in which people are shown them.
std::span<const AdjustmentRow> adjustmentRows();
const AdjustmentRow& adjustmentRow(Adjustment adjustment);
/// Null for a name that is none's.
const AdjustmentRow* adjustmentRow(const std::string& key);

}  // namespace tromelo
