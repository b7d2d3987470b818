#include "display/ThreadedDisplay.h"

#include <pthread.h>
#include <signal.h>

#include <QCoreApplication>
#include <QLoggingCategory>
#include <cstdio>

#include "display/TaskQueue.h"
#include "platform/HostEnvironment.h"

namespace tromelo {

namespace {

Q_LOGGING_CATEGORY(log, "tromelo.display", QtWarningMsg)

void logWlroots(wlr_log_importance importance, const char* format, va_list arguments) {
  char line[512];
  std::vsnprintf(line, sizeof line, format, arguments);
  if (importance == WLR_ERROR)
    qCWarning(log, "%s", line);
  else
    qCDebug(log, "%s", line);
}

/// What libwayland tells of a client is the client's fault, and the client hears of it too.
void logWayland(const char* format, va_list arguments) { logWlroots(WLR_DEBUG, format, arguments); }

/// How Mesa's Vulkan drivers present. They ask whenever the engine opens a Vulkan device, perhaps
/// while this is called: the variable stands there from the first call on, so that a later one only
/// exchanges its value.
void presentThroughSharedMemory(bool always) {
  constexpr const char* variable = "MESA_VK_WSI_DEBUG";
  HostEnvironment::set(variable, always ? QByteArray("sw") : qgetenv(variable));
}

/// Signals are for the threads that have handlers for them.
class BlockedSignals {
 public:
  BlockedSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;

 private:
  sigset_t before_{};
};

}  // namespace

std::unique_ptr<PrivateDisplay> PrivateDisplay::start(const Output& output,
                                                      const std::optional<DmabufSupport>& dmabuf,
                                                      QString* error) {
  wlr_log_init(WLR_ERROR, logWlroots);
  wl_log_set_handler_server(logWayland);
  auto directory = SocketDirectory::create(error);
  if (!directory) return nullptr;
  auto display = std::make_unique<ThreadedDisplay>(output, dmabuf, std::move(directory));
  if (display->run()) {
    presentThroughSharedMemory(!dmabuf);
    return display;
  }
  *error = QCoreApplication::translate("PrivateDisplay",
                                       "the private display did not start; install the package of "
                                       "the library wlroots again.");
  return nullptr;
}

ThreadedDisplay::ThreadedDisplay(const Output& output, const std::optional<DmabufSupport>& dmabuf,
                                 std::unique_ptr<SocketDirectory> directory)
    : directory_(std::move(directory)),
      announcesDmabufs_(dmabuf.has_value()),
      queue_(std::make_shared<TaskQueue>()),
      server_(std::make_unique<DisplayServer>(output, dmabuf, directory_->listeningFd(), queue_,
                                              static_cast<ServerObserver&>(*this))) {}

ThreadedDisplay::~ThreadedDisplay() {
  if (!thread_.joinable()) return;
  queue_->postUnlessClosed([this] { server_->quit(); });
  thread_.join();
}

bool ThreadedDisplay::run() {
  if (!server_->isValid()) return false;
  const BlockedSignals blocked;
  thread_ = std::thread([this] { serve(); });
  return true;
}

void ThreadedDisplay::serve() {
  pthread_setname_np(pthread_self(), "display");
  server_->run();
  queue_->run();
  server_.reset();
  queue_->close();
}

QList<EngineWindow*> ThreadedDisplay::windows() const {
  QList<EngineWindow*> windows;
  for (const auto& [id, window] : windows_) windows.append(window);
  return windows;
}

void ThreadedDisplay::setOutput(const Output& output) {
  queue_->postUnlessClosed([this, output] {
    if (server_) server_->setOutput(output);
  });
}

bool ThreadedDisplay::withdrawDmabufs() {
  if (!std::exchange(announcesDmabufs_, false)) return false;
  presentThroughSharedMemory(true);
  queue_->postUnlessClosed([this] {
    if (server_) server_->withdrawDmabufs();
  });
  return true;
}

void ThreadedDisplay::windowChanged(WindowId id, const WindowState& state) {
  QMetaObject::invokeMethod(
      this, [this, id, state] { updateWindow(id, state); }, Qt::QueuedConnection);
}

void ThreadedDisplay::fullscreenRequested(WindowId id, bool fullscreen) {
  const auto forward = [this, id, fullscreen] {
    const auto found = windows_.find(id);
    if (found != windows_.end()) found->second->requestFullscreen(fullscreen);
  };
  QMetaObject::invokeMethod(this, forward, Qt::QueuedConnection);
}

void ThreadedDisplay::windowDestroyed(WindowId id) {
  QMetaObject::invokeMethod(this, [this, id] { removeWindow(id); }, Qt::QueuedConnection);
}

void ThreadedDisplay::updateWindow(WindowId id, const WindowState& state) {
  const auto [entry, isNew] = windows_.try_emplace(id, nullptr);
  if (isNew) entry->second = new DisplayWindow(postTo(id), this);
  DisplayWindow* window = entry->second;
  window->update(state);
  if (isNew) Q_EMIT windowAdded(window);
}

void ThreadedDisplay::removeWindow(WindowId id) {
  const auto found = windows_.find(id);
  if (found == windows_.end()) return;  // never announced
  DisplayWindow* window = found->second;
  windows_.erase(found);
  window->takeDown();
  window->deleteLater();
}

DisplayWindow::Post ThreadedDisplay::postTo(WindowId id) {
  return [this, id](DisplayWindow::Task task) {
    queue_->postUnlessClosed([this, id, task = std::move(task)] {
      EngineToplevel* toplevel = server_ ? server_->window(id) : nullptr;
      if (toplevel) task(*toplevel);
    });
  };
}

}  // namespace tromelo
