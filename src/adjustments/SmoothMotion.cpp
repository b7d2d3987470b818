#include "adjustments/SmoothMotion.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace tromelo {

namespace {

using Motion = SmoothMotion::Kind;

/// What the engine may make a film faster or slower by; nobody hears or sees that much.
constexpr double kDrift = 0.01;

Motion kindFor(double film, double screen) {
  if (!(film > 0) || !(screen > 0)) return Motion::off;
  const double times = std::max(std::round(screen / film), 1.0);
  return std::abs(screen / film / times - 1) <= kDrift ? Motion::inStep : Motion::interpolated;
}

QString rate(double hertz) {
  constexpr int kDigits = 5;
  return QString::number(std::round(hertz * 1000) / 1000, 'g', kDigits);
}

}  // namespace

SmoothMotion smoothMotion(double film, double screen) {
  return {kindFor(film, screen), film, screen};
}

std::vector<MpvPropertyWrite> engineWrites(const SmoothMotion& motion) {
  return {{"video-sync", motion.kind == Motion::off ? "audio" : "display-resample"},
          {"interpolation", motion.kind == Motion::interpolated ? "yes" : "no"}};
}

QString motionText(const SmoothMotion& motion) {
  const char* text = nullptr;
  switch (motion.kind) {
    case Motion::off:
      return {};
    case Motion::inStep:
      text = QT_TRANSLATE_NOOP("SmoothMotion", "%1 at %2 Hz, in step");
      break;
    case Motion::interpolated:
      text = QT_TRANSLATE_NOOP("SmoothMotion", "%1 at %2 Hz, interpolated");
      break;
  }
  return QCoreApplication::translate("SmoothMotion", text)
      .arg(rate(motion.film), rate(motion.screen));
}

}  // namespace tromelo
