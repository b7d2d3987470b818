#pragma once

#include "engine/MpvProperty.h"

namespace tromelo {

class MpvValue;
class PlaybackModel;

/// What becomes of the engine's properties in the model: one row for each.
struct PropertyMapping {
  static void apply(PlaybackModel& model, MpvProperty property, const MpvValue& value);

  /// Belongs to the file that plays: when it becomes unavailable, what was last known stays on
  /// show.
  static bool isSessionProperty(MpvProperty property);

 private:
  struct Actions;
  struct Row;
  static const Row& row(MpvProperty property);
};

}  // namespace tromelo
