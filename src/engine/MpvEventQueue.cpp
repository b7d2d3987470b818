#include "engine/MpvEventQueue.h"

#include <pthread.h>

#include <string>
#include <utility>

#include "engine/MpvClientApi.h"
#include "engine/MpvConversion.h"
#include "engine/MpvTranslation.h"
#include "engine/WakeupTarget.h"

namespace tromelo {

namespace {

// Who looks more often isn't woken.
constexpr std::chrono::seconds kLongestQuiet(5);

constexpr std::chrono::milliseconds kStill(500);

/// The value that a reply brings.
MpvValue answerOf(const mpv_event& reply) {
  const auto* property = static_cast<const mpv_event_property*>(reply.data);
  if (reply.error < 0 || !property || !property->data) return {};
  if (property->format == MPV_FORMAT_OSD_STRING)
    return std::string(*static_cast<char**>(property->data));
  return mpvValue(*property);
}

}  // namespace

bool TakenEvent::isReply() const {
  return id == MPV_EVENT_COMMAND_REPLY || id == MPV_EVENT_SET_PROPERTY_REPLY ||
         id == MPV_EVENT_GET_PROPERTY_REPLY;
}

MpvEventQueue::MpvEventQueue(std::shared_ptr<const MpvClientApi> api, mpv_handle* engine,
                             std::shared_ptr<WakeupTarget> target)
    : api_(std::move(api)), engine_(engine), target_(std::move(target)) {}

MpvEventQueue::~MpvEventQueue() {
  ends_ = true;
  target_->setListener(false);
  if (thread_.joinable()) thread_.join();
}

void MpvEventQueue::setQuiet(bool quiet) {
  {
    const std::scoped_lock lock(mutex_);
    if (std::exchange(isQuiet_, quiet) == quiet) return;
    lastTold_ = std::chrono::steady_clock::now();
    moves_ = false;
  }
  if (quiet && !thread_.joinable()) thread_ = std::thread([this] { run(); });
  target_->setListener(quiet);
}

std::optional<TakenEvent> MpvEventQueue::next() {
  const std::scoped_lock lock(mutex_);
  if (waiting_.empty()) tellNewest();
  // Asking the engine puts a thread to sleep for a moment, and the other has asked already.
  if (waiting_.empty()) return isQuiet_ ? std::nullopt : takeFromEngine();
  TakenEvent first = std::move(waiting_.front());
  waiting_.pop_front();
  return first;
}

bool MpvEventQueue::moves() {
  const std::scoped_lock lock(mutex_);
  return isQuiet_ && moves_;
}

void MpvEventQueue::run() {
  pthread_setname_np(pthread_self(), "engine events");
  while (!ends_)
    target_->listen(moves() ? std::optional(kStill) : std::nullopt) ? gather() : tellOfStop();
}

void MpvEventQueue::tellOfStop() {
  const std::scoped_lock lock(mutex_);
  if (!isQuiet_ || !std::exchange(moves_, false)) return;
  tellNewest();
  waiting_.push_back({.event = event::FramesStopped{}});
  target_->post();
}

void MpvEventQueue::gather() {
  const std::scoped_lock lock(mutex_);
  if (!isQuiet_ || ends_) return;
  bool isWorthAWake = std::chrono::steady_clock::now() - lastTold_ >= kLongestQuiet;
  while (auto taken = takeFromEngine()) {
    if (isForLater(*taken)) {
      newest_[std::get<event::Property>(*taken->event).property] = *std::move(taken);
      continue;
    }
    tellNewest();
    waiting_.push_back(*std::move(taken));
    isWorthAWake = true;
  }
  if (isWorthAWake) target_->post();
}

/// With the lock.
bool MpvEventQueue::isForLater(const TakenEvent& taken) {
  const auto* change = taken.event ? std::get_if<event::Property>(&*taken.event) : nullptr;
  if (taken.id == MPV_EVENT_PLAYBACK_RESTART) hasJumped_ = true;
  if (!change || !changesWithFrames(change->property)) return false;
  moves_ = moves_ || change->property == MpvProperty::timePos;
  return change->property != MpvProperty::timePos || !std::exchange(hasJumped_, false);
}

/// Before what has come since. With the lock.
void MpvEventQueue::tellNewest() {
  if (!newest_.empty()) lastTold_ = std::chrono::steady_clock::now();
  for (auto& [property, taken] : std::exchange(newest_, {})) waiting_.push_back(std::move(taken));
}

/// The next that is of any use. With the lock.
std::optional<TakenEvent> MpvEventQueue::takeFromEngine() {
  for (;;) {
    const mpv_event* received = api_->waitEvent(engine_, 0);
    if (!received || received->event_id == MPV_EVENT_NONE) return {};
    TakenEvent taken{.id = received->event_id,
                     .error = received->error,
                     .reply = received->reply_userdata,
                     .value = received->event_id == MPV_EVENT_GET_PROPERTY_REPLY
                                  ? answerOf(*received)
                                  : MpvValue(),
                     .event = translateMpvEvent(*api_, *received)};
    if (taken.event || taken.isReply()) return taken;
  }
}

}  // namespace tromelo
