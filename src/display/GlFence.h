#pragma once

#include <EGL/egl.h>

#include "platform/UniqueFd.h"

namespace tromelo {

/// The GPU itself can wait for a fence, and tell with one when it has drawn.
bool hasGlFences(EGLDisplay display);

/// What the current OpenGL context draws from here on waits for `fence`; this thread doesn't, where
/// hasGlFences().
void drawAfter(UniqueFd fence);
/// Signalled once the GPU has drawn what the current OpenGL context was asked for so far; none
/// where it has already.
UniqueFd drawingFence();

}  // namespace tromelo
