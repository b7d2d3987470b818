#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QSize>
#include <QString>
#include <memory>
#include <optional>

#include "display/DmabufSupport.h"
#include "display/EngineWindow.h"

namespace tromelo {

/// The Wayland display that the engine, and nobody else, draws to. Its protocol work is done on a
/// thread of its own; this object and its windows live on the main thread.
class PrivateDisplay : public QObject {
  Q_OBJECT

 public:
  /// The screen that the engine is told of.
  struct Output {
    QSize size;                 // device pixels, not empty
    int refreshMillihertz = 0;  // above 0
    friend bool operator==(const Output&, const Output&) = default;
  };

  /// Starts the display; on failure gives none and one sentence in `error`. Without `dmabuf`, only
  /// shared memory is announced, and Mesa's Vulkan drivers are told to present through it. Before
  /// the engine starts.
  static std::unique_ptr<PrivateDisplay> start(const Output& output,
                                               const std::optional<DmabufSupport>& dmabuf,
                                               QString* error);

  /// Ends the thread and removes the socket. The engine must be gone by then.
  ~PrivateDisplay() override = default;

  /// Absolute; what WAYLAND_DISPLAY has to say.
  virtual QByteArray socketPath() const = 0;
  virtual QList<EngineWindow*> windows() const = 0;
  /// Follows the host's screen.
  virtual void setOutput(const Output& output) = 0;
  /// Without dmabufs from here on, for an engine that makes its output anew. False where it was so
  /// already.
  virtual bool withdrawDmabufs() = 0;

 Q_SIGNALS:
  /// Before the window's first buffer.
  void windowAdded(EngineWindow* window);
};

}  // namespace tromelo
