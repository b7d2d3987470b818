#include "display/SceneDrawing.h"

#include <QOpenGLContext>
#include <QQuickWindow>

namespace tromelo {

bool chooseSceneDrawing() {
  // A window that finds out by itself ends the program.
  const bool hasOpenGl = QOpenGLContext().create();
  QQuickWindow::setGraphicsApi(hasOpenGl ? QSGRendererInterface::OpenGL
                                         : QSGRendererInterface::Software);
  return hasOpenGl;
}

}  // namespace tromelo
