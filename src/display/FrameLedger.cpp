#include "display/FrameLedger.h"

#include <algorithm>
#include <utility>

namespace tromelo {

using namespace std::chrono_literals;

namespace {

constexpr auto hiddenInterval = 1s;
constexpr int silentRefreshes = 2;

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
  /// The engine is told that the picture was never seen.
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

void FrameLedger::shown(std::uint64_t sequence, std::chrono::nanoseconds at) {
  sinkIsSilent_ = false;
  shownSequence_ = std::max(shownSequence_, sequence);
  bool hasAnswered = false;
  for (const auto& debt : debts_) {
    if (debt->sequence > sequence) break;
    hasAnswered |= debt->answer(at);
    if (debt->sequence == sequence && debt->feedback)
      present(std::exchange(debt->feedback, nullptr), at);
    debt->discard();
  }
  std::erase_if(debts_, [](const auto& debt) { return debt->isPaid(); });
  arm();
  if (hasAnswered && hidden_) remindOfHidden_();
}

void FrameLedger::dropped(std::uint64_t sequence) {
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
    timer_.fireAfter(hiddenInterval);
  else
    timer_.fireAfter(refresh() * (sinkIsSilent_ ? 1 : silentRefreshes));
}

void FrameLedger::timeout() {
  const auto time = now();
  sinkIsSilent_ = true;
  bool hasAnswered = false;
  for (const auto& debt : debts_) {
    hasAnswered |= debt->answer(time);
    // A commit without a new picture shows at once.
    if (debt->sequence <= shownSequence_ && debt->feedback)
      present(std::exchange(debt->feedback, nullptr), time);
  }
  std::erase_if(debts_, [](const auto& debt) { return debt->isPaid(); });
  if (hasAnswered && hidden_) remindOfHidden_();
}

void FrameLedger::present(wlr_presentation_feedback* feedback, std::chrono::nanoseconds at) {
  const auto interval = refresh();
  refreshCount_ = std::max(refreshCount_ + 1, std::uint64_t(at / interval));
  const wlr_presentation_event event{
      .output = output_,
      .tv_sec = std::uint64_t(at / 1s),
      .tv_nsec = std::uint32_t((at % 1s).count()),
      .refresh = std::uint32_t(interval.count()),
      .seq = refreshCount_,
      .flags = 0,  // the time of a swap says nothing of a retrace
  };
  wlr_presentation_feedback_send_presented(feedback, &event);
  wlr_presentation_feedback_destroy(feedback);
}

}  // namespace tromelo
