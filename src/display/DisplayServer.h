#pragma once

#include <QSize>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>

#include "display/DmabufGlobal.h"
#include "display/EngineToplevel.h"
#include "display/OutputHead.h"
#include "display/PrivateDisplay.h"

namespace tromelo {

using WindowId = std::uint64_t;

/// What the display's thread reports; called on that thread.
class ServerObserver {
 public:
  virtual ~ServerObserver() = default;
  virtual void windowChanged(WindowId window, const WindowState& state) = 0;
  virtual void fullscreenRequested(WindowId window, bool fullscreen) = 0;
  virtual void windowDestroyed(WindowId window) = 0;
};

/// The Wayland display's globals and objects. Made on any thread, then used by one only.
class DisplayServer {
 public:
  /// `listeningFd` and `observer` must outlive the server.
  DisplayServer(const PrivateDisplay::Output& output, const std::optional<DmabufSupport>& dmabuf,
                int listeningFd, std::shared_ptr<TaskQueue> queue, ServerObserver& observer);
  ~DisplayServer();
  DisplayServer(const DisplayServer&) = delete;
  DisplayServer& operator=(const DisplayServer&) = delete;

  /// False when the system gave something too little.
  bool isValid() const;

  /// Serves the engine until quit().
  void run();
  void quit() { quits_ = true; }

  void setOutput(const PrivateDisplay::Output& output);
  void withdrawDmabufs();
  /// None when it is gone already.
  EngineToplevel* window(WindowId id);

 private:
  struct DisplayDeleter {
    void operator()(wl_display* display) const;
  };

  bool createGlobals();
  void acceptClients();
  void addSurface(wlr_surface* surface);
  void addWindow(wlr_xdg_toplevel* toplevel);

  int listeningFd_;
  std::shared_ptr<TaskQueue> queue_;
  ServerObserver& observer_;
  std::unique_ptr<wl_display, DisplayDeleter> display_;
  std::unique_ptr<OutputHead> output_;
  std::optional<EventSource> tasks_;
  std::optional<EventSource> door_;
  std::unique_ptr<DmabufGlobal> dmabuf_;
  wlr_seat* seat_ = nullptr;
  Listener newSurface_;
  Listener newToplevel_;
  std::map<wlr_surface*, std::unique_ptr<EngineSurface>> surfaces_;
  std::map<WindowId, std::unique_ptr<EngineToplevel>> windows_;
  WindowId lastWindow_ = 0;
  bool isValid_ = false;
  bool quits_ = false;
};

}  // namespace tromelo
