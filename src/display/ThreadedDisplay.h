#pragma once

#include <map>
#include <memory>
#include <thread>

#include "display/DisplayServer.h"
#include "display/DisplayWindow.h"
#include "display/PrivateDisplay.h"
#include "display/SocketDirectory.h"

namespace tromelo {

/// Runs a DisplayServer on a thread of its own and keeps the main thread's picture of its windows.
class ThreadedDisplay final : public PrivateDisplay, private ServerObserver {
  Q_OBJECT

 public:
  ThreadedDisplay(const Output& output, const std::optional<DmabufSupport>& dmabuf,
                  std::unique_ptr<SocketDirectory> directory);
  ~ThreadedDisplay() override;

  /// False, and nothing starts, when the server could not be made.
  bool run();

  QByteArray socketPath() const override { return directory_->socketPath(); }
  QList<EngineWindow*> windows() const override;
  void setOutput(const Output& output) override;
  bool withdrawDmabufs() override;

 private:
  // The display's thread calls these.
  void windowChanged(WindowId id, const WindowState& state) override;
  void fullscreenRequested(WindowId id, bool fullscreen) override;
  void windowDestroyed(WindowId id) override;
  void serve();

  void updateWindow(WindowId id, const WindowState& state);
  void removeWindow(WindowId id);
  DisplayWindow::Post postTo(WindowId id);

  std::unique_ptr<SocketDirectory> directory_;
  bool announcesDmabufs_;
  std::shared_ptr<TaskQueue> queue_;
  std::unique_ptr<DisplayServer> server_;  // the thread's, once that runs
  std::thread thread_;
  std::map<WindowId, DisplayWindow*> windows_;  // children of this object
};

}  // namespace tromelo
