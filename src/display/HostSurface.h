#pragma once

#include <QSize>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "display/HostBuffers.h"
#include "display/HostSync.h"

namespace tromelo {

/// A surface of the host's on which the engine's frames are shown, buffer for buffer: what the host
/// tells of each goes back to the engine as it is. Host thread, but for what says otherwise.
class HostSurface {
 public:
  /// Called on the host thread.
  struct Events {
    std::function<void()> shown;    // a frame is on the host's screen, since setMapped(true)
    std::function<void()> refused;  // the host can't show what the engine draws
  };
  /// Where the picture may go; see placePicture().
  struct Room {
    QSizeF size;  // points of the host's
    qreal devicePixelRatio = 1;
    friend bool operator==(const Room&, const Room&) = default;
  };

  /// Main thread, then begin() on the host thread. `host` outlives it.
  HostSurface(HostConnection& host, Events events);
  ~HostSurface();
  HostSurface(const HostSurface&) = delete;
  HostSurface& operator=(const HostSurface&) = delete;

  /// Any thread: the same all its life.
  wl_surface* surface() const { return surface_.get(); }

  void begin();
  /// Supersedes the frame before; none takes the picture away.
  void setFrame(std::shared_ptr<Frame> frame);
  void setRoom(const Room& room);
  /// 0 to 1, where the host can blend it.
  void setOpacity(double opacity);
  /// Frames are kept and not shown while it isn't.
  void setMapped(bool mapped);
  /// The newest frame, which stays readable.
  const std::shared_ptr<Frame>& frame() const { return frame_; }

 private:
  struct Commit;

  void commitFrame();
  void apply(const Frame& frame);
  bool applySync();
  void applyColor(const std::optional<SurfaceColor>& color);
  void applyPlace(const Frame& frame);
  void follow(const std::shared_ptr<Frame>& frame);
  void finished(Commit* commit);
  void unmap();

  HostConnection& host_;
  const Events events_;
  HostProxy<wl_surface> surface_;
  HostProxy<wp_viewport> viewport_;
  HostProxy<wp_alpha_modifier_surface_v1> alpha_;
  HostProxy<wp_color_management_surface_v1> managed_;
  HostSync sync_;
  HostBuffers buffers_;
  std::vector<std::unique_ptr<Commit>> commits_;  // that the host hasn't told the end of
  std::shared_ptr<Frame> frame_;
  std::optional<SurfaceColor> color_;  // as the host has been told
  Room room_;
  /// What the host has been told of where the buffer goes.
  struct Placement {
    QSize size;
    QRectF source;  // -1: all of the buffer
    bool opaque = false;
    friend bool operator==(const Placement&, const Placement&) = default;
  };
  std::optional<Placement> placement_;
  double opacity_ = 1;
  bool isMapped_ = false;
  bool isShown_ = false;            // told
  bool awaitsBuffer_ = false;       // the frame is to be committed once its buffer is made
  bool hasContent_ = false;         // the host has a buffer of ours
  std::uint64_t lastSequence_ = 0;  // of the frame that the host has
};

}  // namespace tromelo
