#include "glass/GlassRendering.h"

namespace tromelo {

namespace {

GlassRendering present = GlassRendering::material;

}  // namespace

GlassRendering chooseGlassRendering(QByteArrayView asked, bool drawsInSoftware) {
  if (asked == "glass") return GlassRendering::glass;
  if (asked == "material") return GlassRendering::material;
  return drawsInSoftware ? GlassRendering::material : GlassRendering::glass;
}

void setGlassRendering(GlassRendering rendering) { present = rendering; }

GlassRendering glassRendering() { return present; }

}  // namespace tromelo
