#include "display/FrameLedger.h"

#include <algorithm>
#include <utility>

namespace tromelo {

using namespace std::chrono_literals;

namespace {

constexpr auto kHiddenInterval = 1s;
constexpr int kSilentRefreshes = 2;

std::chrono::nanoseconds now() {
  // The steady clock is the monotonic one that presentation feedback counts in.
  return std::chrono::steady_clock::now().time_since_epoch();
}

}  // namespace

struct FrameLedger::Debt {
  explicit Debt(std::uint64_t s) : sequence(s) { wl_list_init(&callbacks); }
  ~Debt() {
    answer(0ns);
    discard();
  }
  Debt(const Debt&) = delete;
  Debt& operator=(const Debt&) = delete;

  /// Whether there was anything to answer.
  bool answer(std::chrono::nanoseconds at) {
    const bool hasCallbacks = !wl_list_empty(&callbacks);
    wl_resource* resource = nullptr;
    wl_resource* next = nullptr;
    wl_resource_for_each_safe(resource, next, &callbacks) {
      if (at > 0ns) wl_callback_send_done(resource, std::uint32_t(at / 1ms));
      wl_resource_destroy(resource);
    }
    return hasCallbacks;
  }
  /// Unless it was told that the picture was shown, the engine hears that it was never seen.
  void discard() {
    if (feedback) wlr_presentation_feedback_destroy(std::exchange(feedback, nullptr));
  }
  bool isPaid() const { return wl_list_empty(&callbacks) && !feedback; }

  std::uint64_t sequence;
  wl_list callbacks{};
  wlr_presentation_feedback* feedback = nullptr;
};

FrameLedger::FrameLedger(wl_event_loop* loop, wlr_output* output,
                         std::function<void()> remindOfHidden)
    : output_(output),
      remindOfHidden_(std::move(remindOfHidden)),
      timer_(EventSource::timer(loop, [this] { timeout(); })) {}

FrameLedger::~FrameLedger() = default;

void FrameLedger::committed(wlr_surface* surface, std::uint64_t sequence) {
  if (std::exchange(committedSequence_, sequence) != sequence && hidden_) remindOfHidden_();
  auto debt = std::make_unique<Debt>(sequence);
  wl_list& asked = surface->current.frame_callback_list;
  wl_list_insert_list(&debt->callbacks, &asked);
  wl_list_init(&asked);
  debt->feedback = wlr_presentation_surface_sampled(surface);
  if (debt->isPaid()) return;
  const bool isWaiting = owesCallbacks();
  debts_.push_back(std::move(debt));
  if (!isWaiting) arm();  // a client that commits faster doesn't push the timer away
}

void FrameLedger::called(std::uint64_t sequence, std::chrono::nanoseconds at) {
  sinkIsSilent_ = false;
  settle(answer(sequence, at));
}

void FrameLedger::shown(std::uint64_t sequence, const Presentation& presentation) {
  sinkIsSilent_ = false;
  shownSequence_ = std::max(shownSequence_, sequence);
  const bool hasAnswered = answer(sequence, presentation.time);
  for (const auto& debt : debts_) {
    if (debt->sequence > sequence) break;
    if (debt->sequence == sequence) present(*debt, presentation);
    debt->discard();
  }
  settle(hasAnswered);
}

void FrameLedger::discarded(std::uint64_t sequence) {
  for (const auto& debt : debts_)
    if (debt->sequence == sequence) debt->discard();
  std::erase_if(debts_, [](const auto& debt) { return debt->isPaid(); });
}

void FrameLedger::setHidden(bool hidden) {
  if (std::exchange(hidden_, hidden) == hidden) return;
  sinkIsSilent_ = false;
  arm();
}

std::chrono::nanoseconds FrameLedger::refresh() const {
  return std::chrono::nanoseconds(1'000'000'000'000 / output_->refresh);
}

bool FrameLedger::owesCallbacks() const {
  return std::ranges::any_of(debts_, [](const auto& d) { return !wl_list_empty(&d->callbacks); });
}

void FrameLedger::arm() {
  if (!owesCallbacks())
    timer_.stop();
  else if (hidden_)
    timer_.fireAfter(kHiddenInterval);
  else
    timer_.fireAfter(refresh() * (sinkIsSilent_ ? 1 : kSilentRefreshes));
}

void FrameLedger::timeout() {
  const auto time = now();
  sinkIsSilent_ = true;
  const bool hasAnswered = answer(committedSequence_, time);
  // A commit without a new picture shows at once.
  for (const auto& debt : debts_)
    if (debt->sequence <= shownSequence_) present(*debt, {time, {}});
  settle(hasAnswered);
}

/// Whether there was a callback to answer.
bool FrameLedger::answer(std::uint64_t sequence, std::chrono::nanoseconds at) {
  bool hasAnswered = false;
  for (const auto& debt : debts_)
    if (debt->sequence <= sequence) hasAnswered |= debt->answer(at);
  return hasAnswered;
}

void FrameLedger::present(Debt& debt, const Presentation& presentation) {
  if (!debt.feedback) return;
  const auto time = presentation.time;
  // The time of a swap says nothing of a retrace.
  const auto retrace = presentation.retrace.value_or(Presentation::Retrace{
      refresh(), std::max(retraceCount_ + 1, std::uint64_t(time / refresh())), 0});
  retraceCount_ = retrace.sequence;
  const wlr_presentation_event event{
      .output = output_,
      .tv_sec = std::uint64_t(time / 1s),
      .tv_nsec = std::uint32_t((time % 1s).count()),
      .refresh = std::uint32_t(retrace.refresh.count()),
      .seq = retrace.sequence,
      .flags = retrace.flags,
  };
  wlr_presentation_feedback_send_presented(debt.feedback, &event);
  debt.discard();
}

void FrameLedger::settle(bool hasAnswered) {
  std::erase_if(debts_, [](const auto& debt) { return debt->isPaid(); });
  arm();
  if (hasAnswered && hidden_) remindOfHidden_();
}

}  // namespace tromelo
