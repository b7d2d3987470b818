#pragma once

#include <QByteArrayView>

namespace tromelo {

/// How the translucent surfaces are drawn: as glass, which blurs what is behind it, or as a plain
/// dark material, which costs next to nothing.
enum class GlassRendering { glass, material };

/// What a person asks for ("glass" or "material") holds; otherwise a machine that draws with its
/// processor gets the material.
GlassRendering chooseGlassRendering(QByteArrayView asked, bool drawsInSoftware);

/// For all surfaces made from now on. Main thread.
void setGlassRendering(GlassRendering rendering);
GlassRendering glassRendering();

}  // namespace tromelo
