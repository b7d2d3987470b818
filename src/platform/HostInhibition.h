#pragma once

#include <QObject>
#include <map>
#include <memory>

#include "platform/IdleInhibitor.h"

class QWindow;
struct wl_display;
struct zwp_idle_inhibit_manager_v1;
struct zwp_idle_inhibitor_v1;

namespace tromelo {

/// Keeps the screen awake by the Wayland host's own protocol, for as long as one of our windows is
/// seen. Main thread only.
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

/// That as a way, which holds on to it.
AskForInhibition hostInhibition();

}  // namespace tromelo
