#pragma once

namespace tromelo {

/// Has Qt draw its scenes with OpenGL where that works, else with the processor, and says whether
/// it works. Main thread, after the application object and before the first window.
bool chooseSceneDrawing();

}  // namespace tromelo
