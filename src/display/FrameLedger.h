#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>

#include "display/Frame.h"
#include "display/WaylandEvents.h"
#include "display/Wlroots.h"

namespace tromelo {

/// What one surface of the engine's is still owed for its commits: frame callbacks and presentation
/// feedback. Display's thread.
///
/// Callbacks go out when the sink asks for the next picture or has shown this one. The engine must
/// never wait for a sink that is busy, hidden or gone, so the display's own timer answers instead:
/// - a sink that is silent for two refreshes is taken to be busy, and until it is heard again every
///   callback is answered one refresh after its commit;
/// - a hidden surface gets its callbacks once a second. An engine may take a callback, or a new
///   size of its window, for the end of being hidden: after each answer, and when it draws, it is
///   reminded.
class FrameLedger {
 public:
  FrameLedger(wl_event_loop* loop, wlr_output* output, std::function<void()> remindOfHidden);
  ~FrameLedger();

  /// Takes over what the surface's newest commit asked for. `sequence` is that of its picture.
  void committed(wlr_surface* surface, std::uint64_t sequence);
  void called(std::uint64_t sequence, std::chrono::nanoseconds at);
  void shown(std::uint64_t sequence, const Presentation& presentation);
  void discarded(std::uint64_t sequence);
  void setHidden(bool hidden);

 private:
  struct Debt;

  std::chrono::nanoseconds refresh() const;
  bool owesCallbacks() const;
  void arm();
  void timeout();
  bool answer(std::uint64_t sequence, std::chrono::nanoseconds at);
  void present(Debt& debt, const Presentation& presentation);
  void settle(bool hasAnswered);

  wlr_output* output_;
  std::function<void()> remindOfHidden_;
  EventSource timer_;
  std::deque<std::unique_ptr<Debt>> debts_;  // in order of commit
  std::uint64_t committedSequence_ = 0;
  std::uint64_t shownSequence_ = 0;
  std::uint64_t retraceCount_ = 0;
  bool sinkIsSilent_ = false;
  bool hidden_ = false;
};

}  // namespace tromelo
