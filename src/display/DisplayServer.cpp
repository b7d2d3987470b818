#include "display/DisplayServer.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "display/PixelFormat.h"
#include "display/TaskQueue.h"
#include "display/UniqueFd.h"

namespace tromelo {

namespace {

constexpr std::uint32_t compositorVersion = 6;
constexpr std::uint32_t shellVersion = 6;
constexpr std::uint32_t shmVersion = 1;
#if WLR_VERSION_NUM >= ((0 << 16) | (19 << 8))
constexpr std::uint32_t presentationVersion = 1;
#endif

wlr_presentation* createPresentation(wl_display* display, wlr_backend* backend) {
#if WLR_VERSION_NUM >= ((0 << 16) | (19 << 8))
  return wlr_presentation_create(display, backend, presentationVersion);
#else
  return wlr_presentation_create(display, backend);
#endif
}

wlr_shm* createShm(wl_display* display) {
  std::array<std::uint32_t, pixelFormats.size()> formats{};
  for (std::size_t i = 0; i < formats.size(); ++i) formats[i] = pixelFormats[i].fourcc;
  return wlr_shm_create(display, shmVersion, formats.data(), formats.size());
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

DisplayServer::DisplayServer(const PrivateDisplay::Output& output,
                             const std::optional<DmabufSupport>& dmabuf, int listeningFd,
                             std::shared_ptr<TaskQueue> queue, ServerObserver& observer)
    : listeningFd_(listeningFd),
      queue_(std::move(queue)),
      observer_(observer),
      display_(wl_display_create()) {
  if (!display_ || queue_->fd() < 0) return;
  output_ = OutputHead::create(display_.get(), output);
  if (!output_ || !createGlobals()) return;
  if (dmabuf) dmabuf_ = std::make_unique<DmabufGlobal>(display_.get(), *dmabuf);
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
  output_.reset();
}

bool DisplayServer::isValid() const { return isValid_; }

bool DisplayServer::createGlobals() {
  wl_display* display = display_.get();
  wlr_compositor* compositor = wlr_compositor_create(display, compositorVersion, nullptr);
  wlr_xdg_shell* shell = wlr_xdg_shell_create(display, shellVersion);
  seat_ = wlr_seat_create(display, "seat0");
  if (!compositor || !shell || !seat_ || !wlr_subcompositor_create(display) ||
      !createShm(display) || !wlr_viewporter_create(display) ||
      !createPresentation(display, output_->backend()))
    return false;
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

void DisplayServer::setOutput(const PrivateDisplay::Output& output) { output_->apply(output); }

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
  const EngineSurface::Place place{wl_display_get_event_loop(display_.get()), output_->output(),
                                   queue_};
  wlr_surface_send_enter(surface, output_->output());
  surfaces_.emplace(surface, std::make_unique<EngineSurface>(
                                 surface, place, [this, surface] { surfaces_.erase(surface); }));
}

void DisplayServer::addWindow(wlr_xdg_toplevel* toplevel) {
  const WindowId id = ++lastWindow_;
  EngineToplevel::Events events{
      .changed = [this, id](const WindowState& state) { observer_.windowChanged(id, state); },
      .fullscreenRequested = [this, id](bool f) { observer_.fullscreenRequested(id, f); },
      .destroyed =
          [this, id] {
            observer_.windowDestroyed(id);
            windows_.erase(id);
          },
  };
  windows_.emplace(id, std::make_unique<EngineToplevel>(toplevel, std::move(events)));
}

}  // namespace tromelo
