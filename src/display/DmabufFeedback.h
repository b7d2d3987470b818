#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "display/DmabufSupport.h"

struct wl_array;
struct zwp_linux_dmabuf_feedback_v1;
struct zwp_linux_dmabuf_v1;

namespace tromelo {

/// A client's ear for what a display tells of its dmabufs: zwp_linux_dmabuf_v1 from version 4 on by
/// feedback, before that by events without a device. On the thread that dispatches its events.
class DmabufFeedback {
 public:
  /// To what `global` says when it is bound, at once after that.
  void listen(zwp_linux_dmabuf_v1* global);
  /// Asks it for more, where its version has more. The answer is there one round trip later.
  void ask(zwp_linux_dmabuf_v1* global);
  /// Formats without any device are told as `fallbackDevice`'s; none where nothing was told.
  std::optional<DmabufSupport> take(std::optional<dev_t> fallbackDevice = {});

 private:
  struct TableEntry {
    std::uint32_t fourcc;
    std::uint32_t padding;
    std::uint64_t modifier;
  };
  static_assert(sizeof(TableEntry) == 16);  // as the protocol has it

  void readTable(int descriptor, std::uint32_t size);
  void addFormats(const wl_array& indices);
  static void add(DmabufSupport::Tranche& tranche, std::uint32_t fourcc, std::uint64_t modifier);

  std::optional<dev_t> mainDevice_;
  std::vector<TableEntry> table_;
  DmabufSupport::Tranche tranche_;  // the one that is being told
  std::vector<DmabufSupport::Tranche> tranches_;
  zwp_linux_dmabuf_feedback_v1* feedback_ = nullptr;  // until everything was told
};

}  // namespace tromelo
