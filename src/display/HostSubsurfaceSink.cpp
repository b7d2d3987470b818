#include "display/HostSubsurfaceSink.h"

#include <utility>

#include "display/PicturePlacement.h"
#include "platform/Timeline.h"

namespace tromelo {

std::shared_ptr<HostSubsurfaceSink> HostSubsurfaceSink::create(std::shared_ptr<HostConnection> host,
                                                               QObject* receiver, Events events) {
  std::shared_ptr<HostSubsurfaceSink> sink(
      new HostSubsurfaceSink(std::move(host), receiver, std::move(events)));
  const std::weak_ptr<HostSubsurfaceSink> weak = sink;
  // On the host thread, which holds no sink: with the last of them the thread itself may end.
  const auto later = [main = sink->mainThread()](std::function<void()> step) {
    return [main, step = std::move(step)] { main->run(step); };
  };
  const auto always = [weak](void (HostSubsurfaceSink::*step)()) {
    return [weak, step] {
      if (const auto self = weak.lock()) (self.get()->*step)();
    };
  };
  sink->surface_ = std::make_shared<HostSurface>(
      *sink->host_, HostSurface::Events{
                        .shown = later(sink->when(Way::mapping, &HostSubsurfaceSink::arrive)),
                        .refused = later(always(&HostSubsurfaceSink::fail)),
                    });
  sink->host_->post([surface = sink->surface_] { surface->begin(); });
  Events ofTap;
  ofTap.committed = always(&HostSubsurfaceSink::tellCommitted);
  ofTap.firstShown = always(&HostSubsurfaceSink::tellFirstShown);
  ofTap.refused = sink->when(Way::scene, &HostSubsurfaceSink::tellRefused);
  sink->tap_ = std::make_shared<SceneItemSink>(receiver, std::move(ofTap));
  return sink;
}

HostSubsurfaceSink::HostSubsurfaceSink(std::shared_ptr<HostConnection> host, QObject* receiver,
                                       Events events)
    : VideoSink(receiver, std::move(events)), host_(std::move(host)) {}

HostSubsurfaceSink::~HostSubsurfaceSink() {
  tap_->disconnect();
  subsurface_.reset();  // before its surface, as the host expects
  host_->post([surface = std::move(surface_)] {});
}

void HostSubsurfaceSink::commit(std::shared_ptr<Frame> frame) {
  std::shared_ptr<Frame> before;  // ends without the lock
  bool isTapped = false;
  bool sceneReports = false;
  {
    const std::scoped_lock lock(mutex_);
    before = std::exchange(newest_, frame);
    isTapped = isTapped_;
    sceneReports = sceneReports_;
  }
  if (isTapped)
    tap_->commit(frame ? frame->secondReader(sceneReports ? Frame::Reporter::other
                                                          : Frame::Reporter::thisFrame)
                       : nullptr);
  host_->post([surface = surface_, frame = std::move(frame)] { surface->setFrame(frame); });
}

QSGNode* HostSubsurfaceSink::updateNode(QSGNode* node, QQuickItem& item) {
  // The main thread waits meanwhile.
  const bool draws = way_ != Way::host || place_.isRead;
  return draws ? tap_->updateNode(node, item) : VideoSink::updateNode(node, item);
}

void HostSubsurfaceSink::setPlace(const Place& place) {
  const bool hasOtherParent = place.parent != place_.parent;
  place_ = place;
  if (hasOtherParent) loseParent();
  applyPlace();
  canGoToHost() ? goToHost() : goToScene();
  updateTap();
}

bool HostSubsurfaceSink::canGoToHost() const {
  const bool canBlend = host_->alphaModifier() || place_.opacity >= 1;
  return !hasFailed_ && place_.parent && canBlend && !place_.picture.isEmpty() &&
         !place_.room.isEmpty();
}

void HostSubsurfaceSink::goToHost() {
  if (way_ == Way::returning || way_ == Way::leaving) {
    // It never stopped showing it.
    setWay(Way::host);
  } else if (way_ == Way::scene) {
    makeSubsurface();
    setWay(Way::placing);
    place_.afterDrawing(when(Way::placing, &HostSubsurfaceSink::map));
  }
}

void HostSubsurfaceSink::map() { setMapped(true, Way::mapping, &HostSubsurfaceSink::nudge); }

void HostSubsurfaceSink::setMapped(bool mapped, Way way, void (HostSubsurfaceSink::*told)()) {
  setWay(way);
  host_->post([surface = surface_, mapped, main = mainThread(), told = when(way, told)] {
    surface->setMapped(mapped);
    main->run(told);
  });
}

/// A host may look at a new surface only when the window above it changes.
void HostSubsurfaceSink::nudge() {
  place_.afterDrawing([] {});
}

void HostSubsurfaceSink::arrive() {
  setWay(Way::host);
  tellFirstShown();
}

void HostSubsurfaceSink::goToScene() {
  if (way_ == Way::placing || way_ == Way::mapping) {
    leave();
  } else if (way_ == Way::host) {
    setWay(Way::returning);
    const auto draw = [weak = weak_from_this()] {
      const auto self = weak.lock();
      if (!self || self->way_ != Way::returning) return;
      self->setWay(Way::leaving);
      self->place_.afterDrawing(self->when(Way::leaving, &HostSubsurfaceSink::leave));
    };
    const std::scoped_lock lock(mutex_);
    if (!newest_) return mainThread()->run(draw);
    // The tap was given the picture before this comes round.
    Frame::readLater(newest_, Frame::Reporter::thisFrame,
                     [main = mainThread(), draw](const auto&) { main->run(draw); });
  }
}

/// The surface is empty before it is a new window's: Weston forgets one that isn't.
void HostSubsurfaceSink::leave() { setMapped(false, Way::unmapping, &HostSubsurfaceSink::settle); }

void HostSubsurfaceSink::settle() {
  setWay(Way::scene);
  if (canGoToHost()) goToHost();
}

/// Its surface is gone, or another, and ours with it.
void HostSubsurfaceSink::loseParent() {
  subsurface_.reset();
  if (way_ != Way::scene && way_ != Way::unmapping) leave();
}

void HostSubsurfaceSink::makeSubsurface() {
  if (subsurface_) return;
  subsurface_.reset(
      wl_subcompositor_get_subsurface(host_->subcompositor(), surface_->surface(), place_.parent));
  wl_subsurface_place_below(subsurface_.get(), place_.parent);
  wl_subsurface_set_desync(subsurface_.get());
  position_ = picturePlace().topLeft();
  wl_subsurface_set_position(subsurface_.get(), position_.x(), position_.y());
}

void HostSubsurfaceSink::applyPlace() {
  const HostSurface::Room room{place_.room.size(), place_.devicePixelRatio};
  host_->post([surface = surface_, room, opacity = place_.opacity] {
    surface->setRoom(room);
    surface->setOpacity(opacity);
  });
  const QPoint position = picturePlace().topLeft();
  if (std::exchange(position_, position) == position || !subsurface_) return;
  wl_subsurface_set_position(subsurface_.get(), position.x(), position.y());
}

QRect HostSubsurfaceSink::picturePlace() const {
  const QRect place = placeInPoints(place_.picture, place_.room.size(), place_.devicePixelRatio);
  return place.translated(place_.room.topLeft().toPoint());
}

QRectF HostSubsurfaceSink::hole() const {
  const bool isBelow = way_ == Way::host || way_ == Way::returning;
  return isBelow ? QRectF(picturePlace()) : QRectF();
}

void HostSubsurfaceSink::setWay(Way way) {
  const QRectF before = hole();
  way_ = way;
  updateTap();
  if (hole() != before) tell(&Events::moved);
}

/// The scene is given the pictures as long as it may need one.
void HostSubsurfaceSink::updateTap() {
  const bool isTapped = way_ != Way::host || place_.isRead;
  const std::scoped_lock lock(mutex_);
  sceneReports_ = way_ == Way::scene || way_ == Way::placing || way_ == Way::unmapping;
  if (std::exchange(isTapped_, isTapped) == isTapped) return;
  if (!isTapped) return tap_->forget();
  if (newest_)
    Frame::readLater(newest_, Frame::Reporter::thisFrame,
                     [tap = tap_](std::shared_ptr<Frame> frame) {
                       if (frame) tap->commit(std::move(frame));
                     });
}

void HostSubsurfaceSink::fail() {
  if (std::exchange(hasFailed_, true)) return;
  goToScene();
  tell(&Events::refusedByHost);
}

void HostSubsurfaceSink::tellFirstShown() {
  if (std::exchange(hasShown_, true)) return;
  Timeline::note("first picture drawn");
  tell(&Events::firstShown);
}

std::function<void()> HostSubsurfaceSink::when(Way way, void (HostSubsurfaceSink::*step)()) {
  return [weak = weak_from_this(), way, step] {
    const auto self = weak.lock();
    if (self && self->way_ == way) (self.get()->*step)();
  };
}

}  // namespace tromelo
