#pragma once

#include "engine/MpvProperty.h"

namespace tromelo {

class MpvValue;
class PlaybackModel;

/// What becomes of the engine's properties in the model.
struct PropertyMapping {
  static void apply(PlaybackModel& model, MpvProperty property, const MpvValue& value);

 private:
  struct Actions;
  struct Row {
    bool ofSession;
    void (*apply)(PlaybackModel& model, const MpvValue& value);
  };
  template <auto Fact>
  static void keepFact(PlaybackModel& model, const MpvValue& value);
  static const Row& row(MpvProperty property);
};

}  // namespace tromelo
