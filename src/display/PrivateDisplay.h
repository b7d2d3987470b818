#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QSize>
#include <QString>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <thread>

#include "display/EngineWindow.h"
#include "display/VideoSinkKind.h"

namespace tromelo {

class DisplayServer;
class SocketDirectory;
class TaskQueue;
struct ToplevelEvents;

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

  /// Until it is started it has no windows, and never gets any.
  PrivateDisplay();
  /// Ends the thread and removes the socket. The engine must be gone by then.
  ~PrivateDisplay() override;

  /// Announces what sinks of `sinkKind` take. Without dmabufs among that, Mesa's Vulkan drivers are
  /// told to present through shared memory. Once, before the engine starts; gives one sentence
  /// where it fails.
  [[nodiscard]] std::optional<QString> start(const Output& output, VideoSinkKind sinkKind);

  /// Absolute; what WAYLAND_DISPLAY has to say. Empty before the start.
  QByteArray socketPath() const;
  /// In the order in which they came.
  QList<EngineWindow*> windows() const;
  /// Follows the host's screen.
  void setOutput(const Output& output);
  /// Without dmabufs from here on, for an engine that makes its output anew. False where it was so
  /// already.
  bool withdrawDmabufs();

 Q_SIGNALS:
  /// Before the window's first buffer.
  void windowAdded(EngineWindow* window);

 private:
  using WindowId = std::uint64_t;

  void serve();
  void post(std::function<void(DisplayServer&)> task);
  ToplevelEvents eventsOf(WindowId id);
  EngineWindow::Post postTo(WindowId id);
  void updateWindow(WindowId id, const EngineWindow::State& state);
  void removeWindow(WindowId id);

  VideoSinkKind sinkKind_;
  std::unique_ptr<SocketDirectory> directory_;
  std::shared_ptr<TaskQueue> queue_;
  std::unique_ptr<DisplayServer> server_;  // the thread's, once that runs
  std::thread thread_;
  std::map<WindowId, EngineWindow*> windows_;  // children of this object
};

}  // namespace tromelo
