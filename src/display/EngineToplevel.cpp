#include "display/EngineToplevel.h"

#include <utility>

namespace tromelo {

EngineToplevel::EngineToplevel(wlr_xdg_toplevel* toplevel, ToplevelEvents events)
    : toplevel_(toplevel),
      engineSurface_(EngineSurface::of(toplevel->base->surface)),
      events_(std::move(events)) {
  host_.shown = true;  // nobody has hidden it yet
  engineSurface_->setWindow(EngineSurface::Window{.remindOfHidden = [this] { answer(); }});
  connect();
}

EngineToplevel::~EngineToplevel() { engineSurface_->setWindow({}); }

void EngineToplevel::connect() {
  commit_.connect(surface()->events.commit, [this](void*) { committed(); });
  unmap_.connect(surface()->events.unmap, [this](void*) {
    state_.visible = false;
    publish();
  });
  destroy_.connect(toplevel_->events.destroy, [this](void*) {
    const auto destroyed = events_.destroyed;  // this object may go while it is called
    destroyed();
  });
  title_.connect(toplevel_->events.set_title, [this](void*) {
    state_.title = QString::fromUtf8(toplevel_->title);
    publish();
  });
  fullscreen_.connect(toplevel_->events.request_fullscreen, [this](void*) {
    state_.fullscreen = toplevel_->requested.fullscreen;
    // Before its first configure the window just starts that way.
    if (!toplevel_->base->initialized) host_.fullscreen = state_.fullscreen;
    publish();
    if (published_) events_.fullscreenRequested(state_.fullscreen);
  });
  maximize_.connect(toplevel_->events.request_maximize, [this](void*) { answer(); });
  minimize_.connect(toplevel_->events.request_minimize, [this](void*) {
    state_.minimized = true;
    publish();
  });
}

void EngineToplevel::setHostState(const EngineWindow::HostState& state) {
  host_ = state;
  state_.fullscreen = state.fullscreen;
  if (state.shown) state_.minimized = false;
  publish();
  configure();
}

void EngineToplevel::setExposed(bool exposed) {
  if (std::exchange(exposed_, exposed) != exposed) configure();
}

void EngineToplevel::setSink(std::shared_ptr<VideoSink> sink) {
  engineSurface_->setSink(std::move(sink));
}

void EngineToplevel::committed() {
  if (toplevel_->base->initial_commit) {
    state_.visible = true;
    if (wl_resource_get_version(toplevel_->resource) >= XDG_TOPLEVEL_WM_CAPABILITIES_SINCE_VERSION)
      wlr_xdg_toplevel_set_wm_capabilities(
          toplevel_,
          WLR_XDG_TOPLEVEL_WM_CAPABILITIES_FULLSCREEN | WLR_XDG_TOPLEVEL_WM_CAPABILITIES_MINIMIZE);
    configure();
  }
  state_.size = QSize(surface()->current.width, surface()->current.height);
  publish();
}

void EngineToplevel::configure() {
  const bool isShown = host_.shown && exposed_;
  engineSurface_->setHidden(!isShown);
  if (!toplevel_->base->initialized) return;  // it is told with its first configure
  const QSize size = host_.size.isEmpty() ? QSize(0, 0) : host_.size;
  wlr_xdg_toplevel_set_size(toplevel_, size.width(), size.height());
  wlr_xdg_toplevel_set_fullscreen(toplevel_, host_.fullscreen);
  wlr_xdg_toplevel_set_activated(toplevel_, host_.activated);
  if (wl_resource_get_version(toplevel_->resource) >= XDG_TOPLEVEL_STATE_SUSPENDED_SINCE_VERSION)
    wlr_xdg_toplevel_set_suspended(toplevel_, !isShown);
}

void EngineToplevel::answer() {
  if (toplevel_->base->initialized) wlr_xdg_surface_schedule_configure(toplevel_->base);
}

void EngineToplevel::publish() {
  // Nobody is told of a window before its first commit, which may never come.
  if (!published_ && !state_.visible) return;
  if (published_ != state_) events_.changed(*(published_ = state_));
}

}  // namespace tromelo
