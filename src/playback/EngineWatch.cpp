#include "playback/EngineWatch.h"

#include <utility>

namespace tromelo {

namespace {

// Looks are counted, and no time is measured: a process that was stopped meanwhile hasn't waited.
constexpr std::chrono::milliseconds kBetweenLooks(500);

}  // namespace

EngineWatch::EngineWatch(Clock& clock, Engine engine) : clock_(clock), engine_(std::move(engine)) {}

void EngineWatch::heard() {
  hasHeard_ = true;
  if (!rests_ || !engine_.moves()) begin();
}

void EngineWatch::told() {
  if (!rests_) begin();
}

void EngineWatch::stopped() {
  hasHeard_ = false;
  begin();
}

void EngineWatch::begin() {
  rests_ = false;
  if (!next_) next_ = clock_.every(kBetweenLooks, [this] { look(); });
}

void EngineWatch::look() {
  const auto patience = engine_.patience();
  if (patience.count() == 0) return next_.reset();
  if (std::exchange(hasHeard_, false)) {
    silentLooks_ = 0;
    rests_ = engine_.moves();
    if (rests_) next_.reset();
    return;
  }
  if (silentLooks_++ == 0) engine_.ask([this] { answered(); });
  if (silentLooks_ * kBetweenLooks < patience) return;
  silentLooks_ = 0;
  next_.reset();
  engine_.hangs();
}

void EngineWatch::answered() {
  silentLooks_ = 0;
  if (!hasHeard_) engine_.stands();
}

}  // namespace tromelo
