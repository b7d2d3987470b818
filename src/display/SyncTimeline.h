#pragma once

#include <sys/types.h>

#include <cstdint>
#include <memory>

#include "platform/UniqueFd.h"

namespace tromelo {

/// A graphics device whose timelines programs share. Any thread.
class SyncDevice {
 public:
  /// The render node of `device`; none where it can't be opened or its driver has no timelines.
  static std::shared_ptr<const SyncDevice> open(dev_t device);

  explicit SyncDevice(UniqueFd fd) : fd_(std::move(fd)) {}
  int fd() const { return fd_.get(); }

 private:
  UniqueFd fd_;
};

/// Points that rise and that are signalled one after the other, mostly by a GPU that has done what
/// it was asked for. A fence is the descriptor of one such point, which can be polled. Any thread;
/// nothing here waits.
class SyncTimeline {
 public:
  /// None where the system gives none.
  static std::shared_ptr<const SyncTimeline> create(std::shared_ptr<const SyncDevice> device);
  /// Another program's, by its descriptor.
  static std::shared_ptr<const SyncTimeline> import(std::shared_ptr<const SyncDevice> device,
                                                    const UniqueFd& shared);
  SyncTimeline(std::shared_ptr<const SyncDevice> device, std::uint32_t handle);
  ~SyncTimeline();
  SyncTimeline(const SyncTimeline&) = delete;
  SyncTimeline& operator=(const SyncTimeline&) = delete;

  const std::shared_ptr<const SyncDevice>& device() const { return device_; }
  /// A descriptor for another program.
  UniqueFd share() const;

  bool isSignalled(std::uint64_t point) const;
  /// The point as a fence; none where nobody has promised yet to signal it.
  UniqueFd fence(std::uint64_t point) const;
  /// Counts `eventFd` up once the point is signalled.
  bool notify(std::uint64_t point, const UniqueFd& eventFd) const;

  bool signal(std::uint64_t point) const;
  /// The point is signalled once `fence` is.
  bool signalAfter(std::uint64_t point, const UniqueFd& fence) const;

 private:
  const std::shared_ptr<const SyncDevice> device_;
  const std::uint32_t handle_;
};

/// A point of a timeline's.
struct SyncPoint {
  std::shared_ptr<const SyncTimeline> timeline = nullptr;
  std::uint64_t value = 0;
};

}  // namespace tromelo
