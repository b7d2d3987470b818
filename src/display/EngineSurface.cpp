#include "display/EngineSurface.h"

#include <utility>

#include "display/ColorManagerGlobal.h"
#include "display/TaskQueue.h"

namespace tromelo {

namespace {

QRegion toRegion(const pixman_region32_t& region) {
  int count = 0;
  const pixman_box32_t* boxes = pixman_region32_rectangles(&region, &count);
  QRegion result;
  for (int i = 0; i < count; ++i)
    result += QRect(QPoint(boxes[i].x1, boxes[i].y1), QPoint(boxes[i].x2 - 1, boxes[i].y2 - 1));
  return result;
}

bool coversSurface(const pixman_region32_t& region, const wlr_surface& surface) {
  const pixman_box32_t whole{0, 0, surface.current.width, surface.current.height};
  return pixman_region32_contains_rectangle(&region, &whole) == PIXMAN_REGION_IN;
}

QRectF sourceOf(wlr_surface* surface) {
  wlr_fbox box{};
  wlr_surface_get_buffer_source_box(surface, &box);
  return {box.x, box.y, box.width, box.height};
}

}  // namespace

EngineSurface::EngineSurface(wlr_surface* surface, const Place& place,
                             std::function<void()> destroyed)
    : surface_(surface),
      queue_(place.queue),
      sync_(place.syncDevice),
      ledger_(std::make_shared<FrameLedger>(place.loop, place.output, [this] {
        if (window_) window_->remindOfHidden();
      })) {
  surface->data = this;
  commit_.connect(surface->events.commit, [this](void*) { committed(); });
  destroy_.connect(surface->events.destroy,
                   [destroyed = std::move(destroyed)](void*) { destroyed(); });
}

EngineSurface* EngineSurface::of(wlr_surface* surface) {
  return static_cast<EngineSurface*>(surface->data);
}

void EngineSurface::setWindow(std::optional<Window> window) {
  window_ = std::move(window);
  if (window_) return;
  sink_.reset();
  unclaimed_.reset();
}

void EngineSurface::setSink(std::shared_ptr<VideoSink> sink) {
  sink_ = window_ ? std::move(sink) : nullptr;
  if (sink_ && unclaimed_) sink_->commit(std::exchange(unclaimed_, nullptr));
}

void EngineSurface::committed() {
  const wlr_surface_state& state = surface_->current;
  const bool hasNewBuffer = state.committed & WLR_SURFACE_STATE_BUFFER;
  const bool hasNewPicture = window_ && hasNewBuffer;
  if (hasNewPicture) ++sequence_;
  ledger_->committed(surface_, sequence_);
  if (hasNewBuffer && !hasNewPicture) sync_.of(surface_);  // nobody reads it
  if (!hasNewPicture) return;
  if (!state.buffer) {
    deliver(nullptr);
  } else if (auto frame = makeFrame()) {
    deliver(std::move(frame));
  } else {
    ledger_->discarded(sequence_);
    wl_client_post_implementation_error(wl_resource_get_client(surface_->resource),
                                        "the buffer can't be read");
  }
}

std::shared_ptr<Frame> EngineSurface::makeFrame() {
  wlr_buffer* buffer = surface_->current.buffer;
  Frame::Content content{
      .sequence = sequence_,
      .buffer = ClientBuffer::of(buffer),
      .source = sourceOf(surface_),
      .size = QSize(surface_->current.width, surface_->current.height),
      .damage = toRegion(surface_->buffer_damage),
      .opaque = coversSurface(surface_->opaque_region, *surface_),
      .color = surfaceColorOf(surface_),
  };
  if (!content.buffer) return nullptr;
  auto sync = sync_.of(surface_);
  const bool isDmabuf = std::holds_alternative<DmabufPixels>(content.buffer->pixels);
  if (EngineSync::isAsked(surface_) && !(sync && isDmabuf)) return nullptr;
  return std::make_shared<Frame>(std::move(content), buffer, std::move(sync), queue_, ledger_);
}

void EngineSurface::deliver(std::shared_ptr<Frame> frame) {
  if (sink_)
    sink_->commit(std::move(frame));
  else
    unclaimed_ = std::move(frame);
}

}  // namespace tromelo
