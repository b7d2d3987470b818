#pragma once

namespace tromelo {

/// What Qt draws its scenes with.
struct SceneDrawing {
  bool withOpenGl = true;    // else with the processor
  bool lacksOpenGl = false;  // OpenGL doesn't work here

  /// As the person asked Qt to, else with OpenGL where that works. Main thread, once, after the
  /// application object and before the first window.
  static SceneDrawing choose();
};

}  // namespace tromelo
