#pragma once

#include "display/ClientBuffer.h"

namespace tromelo {

class GlTexture;

/// Makes `texture` show the pixels of a buffer in the GPU's memory, without a copy. False when EGL
/// refuses. Render thread, with the scene's context current.
bool importEglImage(const ClientBuffer& buffer, const GlTexture& texture);

}  // namespace tromelo
