#pragma once

#include <functional>
#include <optional>

#include "display/EngineSurface.h"
#include "display/EngineWindow.h"

namespace tromelo {

/// What one of the engine's windows tells of itself; called on the display's thread.
struct ToplevelEvents {
  /// The window is about to be drawn first, or something of its state is new.
  std::function<void(const EngineWindow::State&)> changed;
  std::function<void(bool)> fullscreenRequested;
  /// The engine has destroyed the window. May destroy the EngineToplevel.
  std::function<void()> destroyed;
};

/// The display's side of one of the engine's windows. Display's thread.
class EngineToplevel {
 public:
  EngineToplevel(wlr_xdg_toplevel* toplevel, ToplevelEvents events);
  ~EngineToplevel();
  EngineToplevel(const EngineToplevel&) = delete;
  EngineToplevel& operator=(const EngineToplevel&) = delete;

  void setHostState(const EngineWindow::HostState& state);
  void setExposed(bool exposed);
  void setSink(std::shared_ptr<VideoSink> sink);

 private:
  wlr_surface* surface() const { return toplevel_->base->surface; }
  void connect();
  void committed();
  void configure();
  void answer();
  void publish();

  wlr_xdg_toplevel* toplevel_;
  EngineSurface* engineSurface_;  // outlives the toplevel
  ToplevelEvents events_;
  EngineWindow::State state_;
  std::optional<EngineWindow::State> published_;
  EngineWindow::HostState host_;
  bool exposed_ = true;
  Listener commit_, unmap_, destroy_, title_, fullscreen_, maximize_, minimize_;
};

}  // namespace tromelo
