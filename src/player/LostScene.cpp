#include "player/LostScene.h"

#include <QCoreApplication>
#include <QQuickWindow>
#include <csignal>
#include <cstdio>
#include <utility>

namespace tromelo {

namespace {

void end(const QString& reason) {
  static bool ends = false;
  if (std::exchange(ends, true)) return;
  const QString sentence = QCoreApplication::translate(
      "LostScene",
      "The graphics driver can't draw Tromelo's windows (%1); start Tromelo again, and films go on "
      "where they were.");
  std::fprintf(stderr, "%s\n", qPrintable(sentence.arg(reason)));
  std::raise(SIGTERM);
}

}  // namespace

void endWhereSceneIsLost(QQuickWindow& window) {
  // Unless somebody listens, Qt aborts.
  QObject::connect(&window, &QQuickWindow::sceneGraphError, &window,
                   [](QQuickWindow::SceneGraphError, const QString& reason) { end(reason); });
}

}  // namespace tromelo
