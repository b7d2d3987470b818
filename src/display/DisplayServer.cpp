#include "display/DisplayServer.h"

#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

#include "display/TaskQueue.h"
#include "platform/UniqueFd.h"

namespace tromelo {

namespace {

constexpr std::uint32_t kCompositorVersion = 6;
constexpr std::uint32_t kShellVersion = 6;
constexpr std::uint32_t kShmVersion = 1;
#if WLR_VERSION_NUM >= ((0 << 16) | (19 << 8))
constexpr std::uint32_t kPresentationVersion = 1;
#endif

wlr_presentation* createPresentation(wl_display* display, wlr_backend* backend) {
#if WLR_VERSION_NUM >= ((0 << 16) | (19 << 8))
  return wlr_presentation_create(display, backend, kPresentationVersion);
#else
  return wlr_presentation_create(display, backend);
#endif
}

/// The engine, Mesa, the clipboard and the hardware decoder all connect from this very process.
bool isThisProcess(int fd) {
  ucred credentials{};
  socklen_t size = sizeof credentials;
  return getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0 &&
         credentials.pid == getpid();
}

}  // namespace

void DisplayServer::DisplayDeleter::operator()(wl_display* display) const {
  wl_display_destroy(display);
}

DisplayServer::DisplayServer(const PrivateDisplay::Output& output, const VideoSinkKind& sinkKind,
                             int listeningFd, std::shared_ptr<TaskQueue> queue, EventsOf eventsOf)
    : listeningFd_(listeningFd),
      queue_(std::move(queue)),
      eventsOf_(std::move(eventsOf)),
      display_(wl_display_create()) {
  if (!display_ || queue_->fd() < 0) return;
  if (!createOutput(output) || !createGlobals(sinkKind)) return;
  wl_event_loop* loop = wl_display_get_event_loop(display_.get());
  tasks_ = EventSource::readable(loop, queue_->fd(), [this] { queue_->run(); });
  door_ = EventSource::readable(loop, listeningFd_, [this] { acceptClients(); });
  isValid_ = true;
}

DisplayServer::~DisplayServer() {
  if (!display_) return;
  door_.reset();
  tasks_.reset();
  wl_display_destroy_clients(display_.get());
  dmabuf_.reset();
  newSurface_.disconnect();
  newToplevel_.disconnect();
  if (seat_) wlr_seat_destroy(seat_);
  if (backend_) wlr_backend_destroy(backend_);
}

bool DisplayServer::isValid() const { return isValid_; }

/// A headless screen with the host screen's size and refresh rate.
bool DisplayServer::createOutput(const PrivateDisplay::Output& output) {
  backend_ = wlr_headless_backend_create(wl_display_get_event_loop(display_.get()));
  if (!backend_ || !wlr_backend_start(backend_)) return false;
  output_ = wlr_headless_add_output(backend_, unsigned(output.size.width()),
                                    unsigned(output.size.height()));
  if (!output_ || !setOutput(output)) return false;
  wlr_output_create_global(output_, display_.get());
  return true;
}

bool DisplayServer::setOutput(const PrivateDisplay::Output& output) {
  wlr_output_state state;
  wlr_output_state_init(&state);
  wlr_output_state_set_enabled(&state, true);
  wlr_output_state_set_custom_mode(&state, output.size.width(), output.size.height(),
                                   output.refreshMillihertz);
  const bool isSet = wlr_output_commit_state(output_, &state);
  wlr_output_state_finish(&state);
  return isSet;
}

bool DisplayServer::createGlobals(const VideoSinkKind& sinkKind) {
  wl_display* display = display_.get();
  wlr_compositor* compositor = wlr_compositor_create(display, kCompositorVersion, nullptr);
  wlr_xdg_shell* shell = wlr_xdg_shell_create(display, kShellVersion);
  seat_ = wlr_seat_create(display, "seat0");
  if (!compositor || !shell || !seat_ || !wlr_subcompositor_create(display) ||
      !wlr_shm_create(display, kShmVersion, sinkKind.shmFormats.data(),
                      sinkKind.shmFormats.size()) ||
      !wlr_viewporter_create(display) || !createPresentation(display, backend_))
    return false;
  if (sinkKind.dmabuf) dmabuf_ = std::make_unique<DmabufGlobal>(display, *sinkKind.dmabuf);
  if (dmabuf_ && sinkKind.syncDevice && EngineSync::announce(display, *sinkKind.syncDevice))
    syncDevice_ = sinkKind.syncDevice;
  if (sinkKind.announceMore) sinkKind.announceMore(display);
  newSurface_.connect(compositor->events.new_surface,
                      [this](void* data) { addSurface(static_cast<wlr_surface*>(data)); });
  newToplevel_.connect(shell->events.new_toplevel,
                       [this](void* data) { addWindow(static_cast<wlr_xdg_toplevel*>(data)); });
  return true;
}

void DisplayServer::run() {
  wl_event_loop* loop = wl_display_get_event_loop(display_.get());
  while (!quits_) {
    wl_display_flush_clients(display_.get());
    if (wl_event_loop_dispatch(loop, -1) < 0 && errno != EINTR) break;
  }
}

void DisplayServer::withdrawDmabufs() {
  if (dmabuf_) dmabuf_->withdraw();
}

EngineToplevel* DisplayServer::window(WindowId id) {
  const auto found = windows_.find(id);
  return found == windows_.end() ? nullptr : found->second.get();
}

void DisplayServer::acceptClients() {
  while (UniqueFd client{accept4(listeningFd_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK)})
    if (isThisProcess(client.get()) && wl_client_create(display_.get(), client.get()))
      client.release();
}

void DisplayServer::addSurface(wlr_surface* surface) {
  const EngineSurface::Place place{wl_display_get_event_loop(display_.get()), output_, queue_,
                                   syncDevice_};
  wlr_surface_send_enter(surface, output_);
  surfaces_.emplace(surface, std::make_unique<EngineSurface>(
                                 surface, place, [this, surface] { surfaces_.erase(surface); }));
}

void DisplayServer::addWindow(wlr_xdg_toplevel* toplevel) {
  const WindowId id = ++lastWindow_;
  ToplevelEvents events = eventsOf_(id);
  events.destroyed = [this, id, tell = std::move(events.destroyed)] {
    tell();
    windows_.erase(id);
  };
  windows_.emplace(id, std::make_unique<EngineToplevel>(toplevel, std::move(events)));
}

}  // namespace tromelo
