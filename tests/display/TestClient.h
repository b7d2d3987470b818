#pragma once

#include <QByteArray>
#include <QSize>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "Proxy.h"

namespace tromelo::testing {

/// A connection to a display in this process, with what it announces. The display has a thread of
/// its own, so waiting for it blocks nothing that it needs.
class TestClient {
 public:
  explicit TestClient(const QByteArray& socketPath);

  bool isConnected() const { return display_ != nullptr; }
  /// False when the connection is broken.
  bool roundtrip() { return wl_display_roundtrip(display_.get()) >= 0; }
  /// Reads what has come, without waiting.
  void dispatch();
  wl_display* display() const { return display_.get(); }

  /// The interface whose object the display found fault with; empty without a fault.
  std::string faultyInterface() const;
  std::uint32_t faultCode() const;

  struct Screen {
    QSize size;
    int refresh = 0;  // millihertz
    int scale = 0;
  };
  const Screen& screen() const { return screen_; }
  std::uint32_t seatCapabilities() const { return seatCapabilities_; }
  const std::map<std::string, std::uint32_t>& globals() const { return versions_; }
  const std::vector<std::uint32_t>& shmFormats() const { return shmFormats_; }

  wl_compositor* compositor() const { return compositor_.get(); }
  wl_subcompositor* subcompositor() const { return subcompositor_.get(); }
  wl_shm* shm() const { return shm_.get(); }
  xdg_wm_base* shell() const { return shell_.get(); }
  wp_viewporter* viewporter() const { return viewporter_.get(); }
  wp_presentation* presentation() const { return presentation_.get(); }
  zwp_linux_dmabuf_v1* dmabuf() const { return dmabuf_.get(); }

 private:
  void listen();
  void bind(wl_registry* registry, std::uint32_t name, const std::string& interface);

  Proxy<wl_display> display_;
  Proxy<wl_registry> registry_;
  Proxy<wl_compositor> compositor_;
  Proxy<wl_subcompositor> subcompositor_;
  Proxy<wl_shm> shm_;
  Proxy<wl_output> output_;
  Proxy<wl_seat> seat_;
  Proxy<xdg_wm_base> shell_;
  Proxy<wp_viewporter> viewporter_;
  Proxy<wp_presentation> presentation_;
  Proxy<zwp_linux_dmabuf_v1> dmabuf_;
  std::map<std::string, std::uint32_t> versions_;
  std::vector<std::uint32_t> shmFormats_;
  Screen screen_;
  std::uint32_t seatCapabilities_ = ~0u;
};

}  // namespace tromelo::testing
