#include "display/PrivateDisplay.h"

#include <pthread.h>

#include <QCoreApplication>
#include <QLoggingCategory>
#include <cstdio>

#include "display/BlockedSignals.h"
#include "display/DisplayServer.h"
#include "display/SocketDirectory.h"
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
  constexpr const char* kVariable = "MESA_VK_WSI_DEBUG";
  HostEnvironment::set(kVariable, always ? QByteArray("sw") : qgetenv(kVariable));
}

}  // namespace

PrivateDisplay::PrivateDisplay() = default;

PrivateDisplay::~PrivateDisplay() {
  if (!thread_.joinable()) return;
  post([](DisplayServer& server) { server.quit(); });
  thread_.join();
}

std::optional<QString> PrivateDisplay::start(const Output& output, VideoSinkKind sinkKind) {
  wlr_log_init(WLR_ERROR, logWlroots);
  wl_log_set_handler_server(logWayland);
  QString error;
  auto directory = SocketDirectory::create(&error);
  if (!directory) return error;
  auto queue = std::make_shared<TaskQueue>();
  auto server = std::make_unique<DisplayServer>(output, sinkKind, directory->listeningFd(), queue,
                                                [this](WindowId id) { return eventsOf(id); });
  if (!server->isValid())
    return QCoreApplication::translate("PrivateDisplay",
                                       "the private display did not start; install the package of "
                                       "the library wlroots again.");
  sinkKind_ = std::move(sinkKind);
  directory_ = std::move(directory);
  queue_ = std::move(queue);
  server_ = std::move(server);
  const BlockedSignals blocked;
  thread_ = std::thread([this] { serve(); });
  presentThroughSharedMemory(!sinkKind_.dmabuf);
  return std::nullopt;
}

void PrivateDisplay::serve() {
  pthread_setname_np(pthread_self(), "display");
  server_->run();
  queue_->run();
  server_.reset();
  queue_->close();
}

QByteArray PrivateDisplay::socketPath() const {
  return directory_ ? directory_->socketPath() : QByteArray();
}

QList<EngineWindow*> PrivateDisplay::windows() const {
  QList<EngineWindow*> windows;
  for (const auto& [id, window] : windows_) windows.append(window);
  return windows;
}

void PrivateDisplay::setOutput(const Output& output) {
  post([output](DisplayServer& server) { server.setOutput(output); });
}

bool PrivateDisplay::withdrawDmabufs() {
  if (!std::exchange(sinkKind_.dmabuf, std::nullopt)) return false;
  presentThroughSharedMemory(true);
  post([](DisplayServer& server) { server.withdrawDmabufs(); });
  return true;
}

void PrivateDisplay::post(std::function<void(DisplayServer&)> task) {
  if (!thread_.joinable()) return;
  queue_->postUnlessClosed([this, task = std::move(task)] {
    if (server_) task(*server_);
  });
}

EngineWindow::Post PrivateDisplay::postTo(WindowId id) {
  return [this, id](EngineWindow::Task task) {
    post([id, task = std::move(task)](DisplayServer& server) {
      if (EngineToplevel* toplevel = server.window(id)) task(*toplevel);
    });
  };
}

/// Called on the display's thread, from where they go on to this one.
ToplevelEvents PrivateDisplay::eventsOf(WindowId id) {
  const auto forward = [this](auto task) {
    QMetaObject::invokeMethod(this, std::move(task), Qt::QueuedConnection);
  };
  return {
      .changed =
          [=, this](const EngineWindow::State& state) {
            forward([this, id, state] { updateWindow(id, state); });
          },
      .fullscreenRequested =
          [=, this](bool fullscreen) {
            forward([this, id, fullscreen] {
              if (windows_.contains(id)) Q_EMIT windows_[id]->fullscreenRequested(fullscreen);
            });
          },
      .destroyed = [=, this] { forward([this, id] { removeWindow(id); }); },
  };
}

void PrivateDisplay::updateWindow(WindowId id, const EngineWindow::State& state) {
  const auto [entry, isNew] = windows_.try_emplace(id, nullptr);
  if (isNew) entry->second = new EngineWindow(postTo(id), sinkKind_, this);
  EngineWindow* window = entry->second;
  window->update(state);
  if (isNew) Q_EMIT windowAdded(window);
}

void PrivateDisplay::removeWindow(WindowId id) {
  const auto found = windows_.find(id);
  if (found == windows_.end()) return;  // never announced
  EngineWindow* window = found->second;
  windows_.erase(found);
  window->takeDown();
  window->deleteLater();
}

}  // namespace tromelo
