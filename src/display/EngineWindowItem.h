#pragma once

#include <QPointer>
#include <QQuickItem>

#include "display/EngineWindow.h"

namespace tromelo {

/// Shows an engine window's picture in a Qt Quick scene: one to one where item and picture have the
/// same size in device pixels, else fitted with the aspect kept. Repaints when the engine commits a
/// frame and never otherwise.
class EngineWindowItem : public QQuickItem {
  Q_OBJECT

 public:
  explicit EngineWindowItem(QQuickItem* parent = nullptr);
  ~EngineWindowItem() override;

  EngineWindow* engineWindow() const;
  void setEngineWindow(EngineWindow* window);

 Q_SIGNALS:
  /// The first picture of the present engine window is on its way to the screen.
  void firstFrameShown();
};

}  // namespace tromelo
