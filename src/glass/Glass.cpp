#include "glass/Glass.h"

namespace tromelo {

namespace {

auto present = Glass::Rendering::material;

}  // namespace

Glass::Rendering Glass::choose(QByteArrayView asked, bool drawsInSoftware) {
  if (asked == "glass") return Rendering::glass;
  if (asked == "material") return Rendering::material;
  return drawsInSoftware ? Rendering::material : Rendering::glass;
}

void Glass::setRendering(Rendering rendering) { present = rendering; }

bool Glass::blurs() { return present == Rendering::glass; }

}  // namespace tromelo
