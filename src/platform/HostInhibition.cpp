#include <qpa/qplatformnativeinterface.h>
#include <wayland-client.h>

#include <QEvent>
#include <QGuiApplication>
#include <QObject>
#include <QWindow>
#include <cstring>
#include <map>
#include <memory>

#include "idle-inhibit-unstable-v1-client-protocol.h"
#include "platform/IdleInhibitor.h"

namespace tromelo {

namespace {

wl_display* hostDisplay() {
  if (!QGuiApplication::platformName().startsWith(u"wayland")) return nullptr;
  QPlatformNativeInterface* host = QGuiApplication::platformNativeInterface();
  return static_cast<wl_display*>(host->nativeResourceForIntegration("wl_display"));
}

wl_surface* surfaceOf(QWindow& window) {
  QPlatformNativeInterface* host = QGuiApplication::platformNativeInterface();
  return static_cast<wl_surface*>(host->nativeResourceForWindow("surface", &window));
}

/// Keeps the screen awake by the Wayland host's own protocol, for as long as one of our windows is
/// visible. Main thread only.
class HostInhibition : public QObject {
 public:
  /// Begins to ask the host what it offers; waits for nothing.
  HostInhibition();
  ~HostInhibition() override;

  /// False on other hosts, and before the host has answered.
  bool isOffered() const;
  void hold();
  void release();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Registry;
  struct Destroyer {
    void operator()(zwp_idle_inhibitor_v1* inhibitor) const;
  };

  void follow(QWindow& window);

  std::unique_ptr<Registry> registry_;
  std::map<const QObject*, std::unique_ptr<zwp_idle_inhibitor_v1, Destroyer>> held_;  // by window
};

struct HostInhibition::Registry {
  explicit Registry(wl_display* display) : registry(wl_display_get_registry(display)) {
    static constexpr wl_registry_listener kListener{
        .global = [](void* data, wl_registry*, std::uint32_t name, const char* interface,
                     std::uint32_t) { static_cast<Registry*>(data)->bind(name, interface); },
        .global_remove = [](void*, wl_registry*, std::uint32_t) {},
    };
    wl_registry_add_listener(registry, &kListener, this);
  }
  ~Registry() {
    if (manager) zwp_idle_inhibit_manager_v1_destroy(manager);
    wl_registry_destroy(registry);
  }
  Registry(const Registry&) = delete;
  Registry& operator=(const Registry&) = delete;

  void bind(std::uint32_t name, const char* interface) {
    if (manager || std::strcmp(interface, zwp_idle_inhibit_manager_v1_interface.name) != 0) return;
    manager = static_cast<zwp_idle_inhibit_manager_v1*>(
        wl_registry_bind(registry, name, &zwp_idle_inhibit_manager_v1_interface, 1));
  }

  wl_registry* registry;
  zwp_idle_inhibit_manager_v1* manager = nullptr;
};

void HostInhibition::Destroyer::operator()(zwp_idle_inhibitor_v1* inhibitor) const {
  zwp_idle_inhibitor_v1_destroy(inhibitor);
}

HostInhibition::HostInhibition() {
  // Qt dispatches the connection's default queue on this thread.
  if (wl_display* display = hostDisplay()) registry_ = std::make_unique<Registry>(display);
}

HostInhibition::~HostInhibition() = default;

bool HostInhibition::isOffered() const { return registry_ && registry_->manager; }

void HostInhibition::hold() {
  qGuiApp->installEventFilter(this);
  for (QWindow* window : QGuiApplication::topLevelWindows()) follow(*window);
}

void HostInhibition::release() {
  qGuiApp->removeEventFilter(this);
  held_.clear();
}

bool HostInhibition::eventFilter(QObject* watched, QEvent* event) {
  // A window has a new surface each time that it is shown.
  if (event->type() == QEvent::Expose) follow(static_cast<QWindow&>(*watched));
  if (event->type() == QEvent::Hide || event->type() == QEvent::PlatformSurface)
    held_.erase(watched);
  return false;
}

void HostInhibition::follow(QWindow& window) {
  if (!window.isExposed() || held_.contains(&window)) return;
  if (wl_surface* surface = surfaceOf(window))
    held_[&window].reset(zwp_idle_inhibit_manager_v1_create_inhibitor(registry_->manager, surface));
}

}  // namespace

AskForInhibition hostInhibition() {
  return [host = std::make_shared<HostInhibition>()](const auto& answer) {
    if (!host->isOffered()) return answer({});
    host->hold();
    answer([host] { host->release(); });
  };
}

}  // namespace tromelo
