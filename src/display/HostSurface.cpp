#include "display/HostSurface.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <utility>

#include "alpha-modifier-v1-client-protocol.h"
#include "color-management-v1-client-protocol.h"
#include "display/PicturePlacement.h"
#include "display/PixelFormat.h"
#include "presentation-time-client-protocol.h"
#include "viewporter-client-protocol.h"

namespace tromelo {

namespace {

// A host that says nothing for so many frames has forgotten the oldest.
constexpr std::size_t kMostUnanswered = 32;

std::uint64_t whole(std::uint32_t high, std::uint32_t low) {
  return std::uint64_t(high) << 32 | low;
}

bool isOpaque(const Frame::Content& content) {
  return content.opaque || !pixelFormat(content.buffer->fourcc)->hasAlpha;
}

}  // namespace

/// What the host still owes for one commit.
struct HostSurface::Commit {
  Commit(HostSurface& surface, std::shared_ptr<Frame> of) : owner(surface), frame(std::move(of)) {}

  void listen(wp_presentation* presentation);
  void divert();
  void take(const HostRelay::Event& event);
  void done(std::uint32_t milliseconds);
  void presented(std::uint64_t seconds, std::uint32_t nanoseconds,
                 const Presentation::Retrace& retrace);
  void discarded();
  void finish() {
    if (!callback && !feedback) owner.finished(this);
  }

  HostSurface& owner;
  const std::shared_ptr<Frame> frame;
  HostProxy<wl_callback> callback;
  HostProxy<struct wp_presentation_feedback> feedback;
  std::shared_ptr<const HostRelay::Handler> diverted;  // ends before they do
};

void HostSurface::Commit::listen(wp_presentation* presentation) {
  using Feedback = struct wp_presentation_feedback;
  static constexpr wl_callback_listener kCallback{
      .done = [](void* data, wl_callback*, std::uint32_t milliseconds) {
        static_cast<Commit*>(data)->done(milliseconds);
      }};
  static constexpr wp_presentation_feedback_listener kFeedback{
      .sync_output = ignore<Feedback*, wl_output*>,
      .presented =
          [](void* data, auto*, std::uint32_t secondsHigh, std::uint32_t secondsLow,
             std::uint32_t nanoseconds, std::uint32_t refresh, std::uint32_t sequenceHigh,
             std::uint32_t sequenceLow, std::uint32_t flags) {
            static_cast<Commit*>(data)->presented(
                whole(secondsHigh, secondsLow), nanoseconds,
                {std::chrono::nanoseconds(refresh), whole(sequenceHigh, sequenceLow), flags});
          },
      .discarded = [](void* data, auto*) { static_cast<Commit*>(data)->discarded(); },
  };
  callback.reset(wl_surface_frame(owner.surface()));
  wl_callback_add_listener(callback.get(), &kCallback, this);
  feedback.reset(wp_presentation_feedback(presentation, owner.surface()));
  wp_presentation_feedback_add_listener(feedback.get(), &kFeedback, this);
  divert();
}

/// Nothing is told of either before the surface is committed.
void HostSurface::Commit::divert() {
  diverted = std::make_shared<const HostRelay::Handler>([this](const auto& event) { take(event); });
  owner.host_.divert(reinterpret_cast<wl_proxy*>(callback.get()), diverted);
  owner.host_.divert(reinterpret_cast<wl_proxy*>(feedback.get()), diverted);
}

/// What the listeners are told, in the protocols' own numbers.
void HostSurface::Commit::take(const HostRelay::Event& event) {
  constexpr std::uint32_t kDone = 0;
  constexpr std::uint32_t kPresented = 1;
  constexpr std::uint32_t kDiscarded = 2;
  const auto is = [&](auto& proxy) {
    return proxy && wl_proxy_get_id(reinterpret_cast<wl_proxy*>(proxy.get())) == event.object;
  };
  const auto& told = event.arguments;
  if (is(callback) && event.opcode == kDone && told.size() == 1)
    done(told[0]);
  else if (is(feedback) && event.opcode == kPresented && told.size() == 7)
    presented(whole(told[0], told[1]), told[2],
              {std::chrono::nanoseconds(told[3]), whole(told[4], told[5]), told[6]});
  else if (is(feedback) && event.opcode == kDiscarded)
    discarded();
}

void HostSurface::Commit::done(std::uint32_t milliseconds) {
  callback.reset();
  frame->answerCallbacks(std::chrono::milliseconds(milliseconds));
  if (!std::exchange(owner.isShown_, true)) owner.events_.shown();
  finish();
}

void HostSurface::Commit::presented(std::uint64_t seconds, std::uint32_t nanoseconds,
                                    const Presentation::Retrace& retrace) {
  feedback.reset();
  const auto time = owner.host_.hasOurClock()
                        ? std::chrono::seconds(seconds) + std::chrono::nanoseconds(nanoseconds)
                        : std::chrono::steady_clock::now().time_since_epoch();
  frame->markShown({time, retrace});
  finish();
}

void HostSurface::Commit::discarded() {
  feedback.reset();
  frame->markDiscarded();
  finish();
}

HostSurface::HostSurface(HostConnection& host, Events events)
    : host_(host),
      events_(std::move(events)),
      surface_(wl_compositor_create_surface(host.compositor())),
      viewport_(wp_viewporter_get_viewport(host.viewporter(), surface())),
      sync_(host, surface()),
      buffers_(host, {.made =
                          [this] {
                            if (awaitsBuffer_) commitFrame();
                          },
                      .refused = [this] { events_.refused(); }}) {
  if (host.alphaModifier())
    alpha_.reset(wp_alpha_modifier_v1_get_surface(host.alphaModifier(), surface()));
  // The window above takes all input.
  const HostProxy<wl_region> nothing(wl_compositor_create_region(host.compositor()));
  wl_surface_set_input_region(surface(), nothing.get());
}

HostSurface::~HostSurface() {
  if (host_.pictureSurface() == surface()) host_.setPictureSurface(nullptr);
}

void HostSurface::begin() { host_.setPictureSurface(surface()); }

void HostSurface::setFrame(std::shared_ptr<Frame> frame) {
  frame_ = std::move(frame);
  if (!frame_) unmap();
  if (isMapped_) commitFrame();
  buffers_.setNewest(frame_);
}

void HostSurface::setRoom(const Room& room) {
  if (std::exchange(room_, room) == room || !isMapped_ || !frame_) return;
  if (!hasContent_) return commitFrame();
  applyPlace(*frame_);
  wl_surface_commit(surface());
}

void HostSurface::setOpacity(double opacity) {
  if (!alpha_ || std::exchange(opacity_, opacity) == opacity) return;
  constexpr double kWhole = std::numeric_limits<std::uint32_t>::max();
  wp_alpha_modifier_surface_v1_set_multiplier(
      alpha_.get(), std::uint32_t(std::lround(std::clamp(opacity, 0.0, 1.0) * kWhole)));
  if (hasContent_) wl_surface_commit(surface());
}

void HostSurface::setMapped(bool mapped) {
  if (std::exchange(isMapped_, mapped) == mapped) return;
  isShown_ = false;
  if (mapped)
    commitFrame();
  else
    unmap();
}

void HostSurface::commitFrame() {
  awaitsBuffer_ = false;
  if (!frame_ || room_.size.isEmpty()) return;
  wl_buffer* buffer = buffers_.buffer(frame_);
  if (!buffer) {
    awaitsBuffer_ = true;
    return;
  }
  if (!applySync()) return events_.refused();
  applyColor(frame_->content().color);
  wl_surface_attach(surface(), buffer, 0, 0);
  apply(*frame_);
  follow(frame_);
  wl_surface_commit(surface());
  buffers_.attached(frame_);
  hasContent_ = true;
  lastSequence_ = frame_->content().sequence;
}

void HostSurface::apply(const Frame& frame) {
  const Frame::Content& content = frame.content();
  const bool followsLast = hasContent_ && content.sequence == lastSequence_ + 1;
  const QRegion damage = followsLast ? content.damage : QRegion(QRect({}, content.buffer->size));
  for (const QRect& rect : damage)
    wl_surface_damage_buffer(surface(), rect.x(), rect.y(), rect.width(), rect.height());
  applyPlace(frame);
}

/// The engine's point goes on to the host as it is. The other is ours: until the host has signalled
/// it the picture may be read by the scene too, and the engine is told by who lets go last.
bool HostSurface::applySync() {
  const auto sync = frame_->sync();
  if (!sync) {
    sync_.unset();
    return true;
  }
  const auto release = buffers_.nextRelease(frame_);
  return release && sync_.set(sync->acquire(), *release);
}

/// Only what the engine has said: the host takes a surface without a description as it does any.
void HostSurface::applyColor(const std::optional<SurfaceColor>& color) {
  if (std::exchange(color_, color) == color || !host_.colorManager()) return;
  if (!managed_) managed_.reset(wp_color_manager_v1_get_surface(host_.colorManager(), surface()));
  if (color)
    wp_color_management_surface_v1_set_image_description(
        managed_.get(), color->description->proxy(), color->intent);
  else
    wp_color_management_surface_v1_unset_image_description(managed_.get());
}

void HostSurface::applyPlace(const Frame& frame) {
  const Frame::Content& content = frame.content();
  const Placement placement{
      placeInPoints(content.size, room_.size, room_.devicePixelRatio).size(),
      content.source == QRectF({}, content.buffer->size) ? QRectF(-1, -1, -1, -1) : content.source,
      isOpaque(content)};
  if (std::exchange(placement_, placement) == placement) return;
  const auto& [size, source, opaque] = placement;
  wp_viewport_set_destination(viewport_.get(), size.width(), size.height());
  wp_viewport_set_source(viewport_.get(), wl_fixed_from_double(source.x()),
                         wl_fixed_from_double(source.y()), wl_fixed_from_double(source.width()),
                         wl_fixed_from_double(source.height()));
  const HostProxy<wl_region> region(wl_compositor_create_region(host_.compositor()));
  if (opaque) wl_region_add(region.get(), 0, 0, size.width(), size.height());
  wl_surface_set_opaque_region(surface(), region.get());
}

void HostSurface::follow(const std::shared_ptr<Frame>& frame) {
  if (commits_.size() == kMostUnanswered) commits_.erase(commits_.begin());
  auto commit = std::make_unique<Commit>(*this, frame);
  commit->listen(host_.presentation());
  commits_.push_back(std::move(commit));
}

void HostSurface::finished(Commit* commit) {
  std::erase_if(commits_, [commit](const auto& held) { return held.get() == commit; });
}

void HostSurface::unmap() {
  awaitsBuffer_ = false;
  if (!std::exchange(hasContent_, false)) return;
  wl_surface_attach(surface(), nullptr, 0, 0);
  wl_surface_commit(surface());
  commits_.clear();
  buffers_.forgetAttached();
}

}  // namespace tromelo
