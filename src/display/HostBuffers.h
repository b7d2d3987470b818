#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "display/Frame.h"
#include "display/HostConnection.h"

struct wl_buffer;
struct zwp_linux_buffer_params_v1;

namespace tromelo {

/// The host's side of the engine's buffers: one wl_buffer for each, made once, of the same memory.
/// Host thread.
class HostBuffers {
 public:
  struct Events {
    std::function<void()> made;     // buffer() may give one now
    std::function<void()> refused;  // the host takes no buffer of this kind
  };

  /// `host` outlives it.
  HostBuffers(HostConnection& host, Events events);
  ~HostBuffers();

  /// None while the host hasn't made it yet, and never where it refuses.
  wl_buffer* buffer(const std::shared_ptr<Frame>& frame);
  /// What the host is to signal once it has read the frame, which has a sync; none where the system
  /// gives too little.
  std::optional<SyncPoint> nextRelease(const std::shared_ptr<Frame>& frame);
  /// The host reads `frame` from here on; its buffer goes back once the host lets go of it and
  /// setNewest() has named another.
  void attached(const std::shared_ptr<Frame>& frame);
  /// This one stays readable, for who comes later.
  void setNewest(std::shared_ptr<Frame> frame);
  /// The host shows none of them any more and owes no releases, but for points.
  void forgetAttached();

 private:
  struct Entry;

  Entry& entryOf(const std::shared_ptr<Frame>& frame);
  void make(Entry& entry, const Frame& frame);
  void makeShm(Entry& entry, const ClientBuffer& buffer, const ShmPixels& pixels);
  bool makeDmabuf(Entry& entry, const ClientBuffer& buffer, const DmabufPixels& pixels);
  void giveBack(const std::shared_ptr<Frame>& frame);
  void signalled();
  void prune();

  HostConnection& host_;
  const Events events_;
  std::map<const ClientBuffer*, std::unique_ptr<Entry>> entries_;
  std::shared_ptr<Frame> newest_;
  UniqueFd signals_;  // counts points that the host has signalled
};

}  // namespace tromelo
