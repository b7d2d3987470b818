#include "display/SceneDrawing.h"

#include <QOpenGLContext>
#include <QQuickWindow>

namespace tromelo {

namespace {

/// Qt itself says so only after the first window.
bool asksForSoftware() {
  return qgetenv("QT_QUICK_BACKEND").startsWith("software") ||
         QQuickWindow::sceneGraphBackend() == QLatin1String("software");
}

}  // namespace

SceneDrawing SceneDrawing::choose() {
  SceneDrawing drawing;
  if (asksForSoftware()) drawing.withOpenGl = false;
  // A window that finds out by itself ends the program.
  else if (!QOpenGLContext().create())
    drawing = {.withOpenGl = false, .lacksOpenGl = true};
  QQuickWindow::setGraphicsApi(drawing.withOpenGl ? QSGRendererInterface::OpenGL
                                                  : QSGRendererInterface::Software);
  return drawing;
}

}  // namespace tromelo
