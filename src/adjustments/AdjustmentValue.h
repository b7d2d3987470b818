#pragma once

#include <QString>
#include <optional>
#include <string>

#include "adjustments/Adjustment.h"

namespace tromelo {

// Values are texts, as they are stored: a choice's own, a number's, a part of the picture
// ("1920x800+0+140"), or a track as FilmRecord has it.

std::string asMade(const AdjustmentRow& row);

/// The nearest value that makes sense; none where there is no such.
std::optional<std::string> keptValue(const AdjustmentRow& row, const std::string& value);

/// So many steps on: choices go round, numbers end where their range does.
std::string steppedValue(const AdjustmentRow& row, const std::string& value, int steps);

/// What the engine is told of a value that makes sense.
std::vector<MpvPropertyWrite> engineWrites(const AdjustmentRow& row, const std::string& value);

/// For people, in their language: "4:3", "110%".
QString valueText(const AdjustmentRow& row, const std::string& value);
QString adjustmentName(const AdjustmentRow& row);

}  // namespace tromelo
