#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "display/DmabufGlobal.h"
#include "display/EngineToplevel.h"
#include "display/PrivateDisplay.h"
#include "display/WaylandEvents.h"
#include "display/Wlroots.h"

namespace tromelo {

/// The Wayland display's globals and objects. Made on any thread, then used by one only.
class DisplayServer {
 public:
  /// Numbers rise, and are never used again.
  using WindowId = std::uint64_t;
  /// Gives what is to be called for a new window.
  using EventsOf = std::function<ToplevelEvents(WindowId)>;

  /// `listeningFd` must outlive the server. The screen has a mode from the beginning: without one
  /// the engine divides by zero.
  DisplayServer(const PrivateDisplay::Output& output, const VideoSinkKind& sinkKind,
                int listeningFd, std::shared_ptr<TaskQueue> queue, EventsOf eventsOf);
  ~DisplayServer();
  DisplayServer(const DisplayServer&) = delete;
  DisplayServer& operator=(const DisplayServer&) = delete;

  /// False when the system gave something too little.
  bool isValid() const;

  /// Serves the engine until quit().
  void run();
  void quit() { quits_ = true; }

  /// False where wlroots refuses.
  bool setOutput(const PrivateDisplay::Output& output);
  void withdrawDmabufs();
  /// None when it is gone already.
  EngineToplevel* window(WindowId id);

 private:
  struct DisplayDeleter {
    void operator()(wl_display* display) const;
  };

  bool createOutput(const PrivateDisplay::Output& output);
  bool createGlobals(const VideoSinkKind& sinkKind);
  void acceptClients();
  void addSurface(wlr_surface* surface);
  void addWindow(wlr_xdg_toplevel* toplevel);

  int listeningFd_;
  std::shared_ptr<TaskQueue> queue_;
  EventsOf eventsOf_;
  std::unique_ptr<wl_display, DisplayDeleter> display_;
  wlr_backend* backend_ = nullptr;
  wlr_output* output_ = nullptr;  // the backend's
  std::optional<EventSource> tasks_;
  std::optional<EventSource> door_;
  std::unique_ptr<DmabufGlobal> dmabuf_;
  std::shared_ptr<const SyncDevice> syncDevice_;
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
