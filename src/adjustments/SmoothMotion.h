#pragma once

#include <QString>
#include <vector>

#include "engine/MpvRequest.h"

namespace tromelo {

/// How a film's pictures are brought into step with the screen's.
struct SmoothMotion {
  enum class Kind {
    off,           // each is shown when its time has come
    inStep,        // the film runs a little faster or slower, so that each stays equally long
    interpolated,  // what falls between two pictures is mixed of both
  };

  Kind kind = Kind::off;
  double film = 0;    // pictures a second
  double screen = 0;  // Hz

  friend bool operator==(const SmoothMotion&, const SmoothMotion&) = default;
};

/// What suits best. Rates that aren't known are 0.
SmoothMotion smoothMotion(double film, double screen);

std::vector<MpvPropertyWrite> engineWrites(const SmoothMotion& motion);

/// For people: "23.976 at 60 Hz, interpolated"; empty where it is off.
QString motionText(const SmoothMotion& motion);

}  // namespace tromelo
