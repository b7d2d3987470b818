#include "display/HostBuffers.h"

#include <sys/eventfd.h>
#include <sys/types.h>
#include <unistd.h>

#include <utility>

#include "display/PixelFormat.h"
#include "linux-dmabuf-v1-client-protocol.h"

namespace tromelo {

namespace {

/// A host ends the whole connection for a plane that reaches beyond its memory.
bool liesInMemory(const DmabufPixels::Plane& plane, std::uint64_t lines) {
  const off_t size = lseek(plane.fd, 0, SEEK_END);
  if (size < 0) return true;  // such memory doesn't tell its size, to the host neither
  return plane.offset + std::uint64_t(plane.stride) * lines <= std::uint64_t(size);
}

}  // namespace

struct HostBuffers::Entry {
  explicit Entry(HostBuffers& buffers) : owner(buffers) {}

  HostBuffers& owner;
  std::weak_ptr<const ClientBuffer> memory;
  HostProxy<wl_buffer> buffer;
  HostProxy<zwp_linux_buffer_params_v1> params;        // while it is made
  std::shared_ptr<Frame> read;                         // by the host
  SyncPoint release;                                   // the host's last, of a timeline of our own
  bool isSynced = false;                               // what it reads is free at that point
  std::shared_ptr<const HostRelay::Handler> diverted;  // ends before the buffer

  void listen() {
    static constexpr wl_buffer_listener kListener{
        .release = [](void* data, wl_buffer*) { static_cast<Entry*>(data)->released(); }};
    wl_buffer_add_listener(buffer.get(), &kListener, this);
    diverted = std::make_shared<const HostRelay::Handler>([this](const auto&) { released(); });
    owner.host_.divert(reinterpret_cast<wl_proxy*>(buffer.get()), diverted);
  }
  void released() {
    if (!isSynced) end();
  }
  /// The host reads it no more.
  void end() {
    if (const auto frame = std::exchange(read, nullptr)) owner.giveBack(frame);
  }
};

HostBuffers::HostBuffers(HostConnection& host, Events events)
    : host_(host), events_(std::move(events)) {}

HostBuffers::~HostBuffers() {
  if (signals_) host_.unwatch(signals_.get());
}

wl_buffer* HostBuffers::buffer(const std::shared_ptr<Frame>& frame) {
  return entryOf(frame).buffer.get();
}

std::optional<SyncPoint> HostBuffers::nextRelease(const std::shared_ptr<Frame>& frame) {
  if (!signals_) {
    signals_.reset(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!signals_) return {};
    host_.watch(signals_.get(), [this] { signalled(); });
  }
  SyncPoint& release = entryOf(frame).release;
  if (!release.timeline)
    release.timeline = SyncTimeline::create(frame->sync()->acquire().timeline->device());
  if (!release.timeline || !release.timeline->notify(++release.value, signals_)) return {};
  return release;
}

void HostBuffers::attached(const std::shared_ptr<Frame>& frame) {
  Entry& entry = entryOf(frame);
  entry.read = frame;
  entry.isSynced = frame->sync() != nullptr;
}

void HostBuffers::signalled() {
  std::uint64_t count = 0;
  [[maybe_unused]] const auto size = read(signals_.get(), &count, sizeof count);
  for (const auto& [memory, entry] : entries_)
    if (entry->read && entry->isSynced &&
        entry->release.timeline->isSignalled(entry->release.value))
      entry->end();
}

void HostBuffers::setNewest(std::shared_ptr<Frame> frame) {
  const auto before = std::exchange(newest_, std::move(frame));
  if (before && before != newest_) giveBack(before);
  prune();
}

void HostBuffers::forgetAttached() {
  for (const auto& [memory, entry] : entries_)
    if (!entry->isSynced) entry->end();
}

HostBuffers::Entry& HostBuffers::entryOf(const std::shared_ptr<Frame>& frame) {
  auto& entry = entries_[frame->content().buffer.get()];
  if (!entry) {
    entry = std::make_unique<Entry>(*this);
    entry->memory = frame->content().buffer;
    make(*entry, *frame);
  }
  return *entry;
}

void HostBuffers::make(Entry& entry, const Frame& frame) {
  const ClientBuffer& buffer = *frame.content().buffer;
  if (const auto* shm = std::get_if<std::shared_ptr<const ShmPixels>>(&buffer.pixels))
    makeShm(entry, buffer, **shm);
  else if (!makeDmabuf(entry, buffer, std::get<DmabufPixels>(buffer.pixels)))
    events_.refused();
}

void HostBuffers::makeShm(Entry& entry, const ClientBuffer& buffer, const ShmPixels& pixels) {
  const auto length = pixels.offset() + std::size_t(pixels.stride()) * buffer.size.height();
  const HostProxy<wl_shm_pool> pool(wl_shm_create_pool(host_.shm(), pixels.fd(), int(length)));
  entry.buffer.reset(wl_shm_pool_create_buffer(pool.get(), int(pixels.offset()),
                                               buffer.size.width(), buffer.size.height(),
                                               pixels.stride(), shmNumber(buffer.fourcc)));
  entry.listen();
}

/// Asked for, never taken for granted: where the host refuses a buffer that was made without
/// asking, it may end the connection, and with it the program.
bool HostBuffers::makeDmabuf(Entry& entry, const ClientBuffer& buffer, const DmabufPixels& pixels) {
  static constexpr zwp_linux_buffer_params_v1_listener kListener{
      .created =
          [](void* data, auto*, wl_buffer* made) {
            auto& self = *static_cast<Entry*>(data);
            self.params.reset();
            self.buffer.reset(made);
            self.listen();
            self.owner.events_.made();
          },
      .failed =
          [](void* data, auto*) {
            auto& self = *static_cast<Entry*>(data);
            self.params.reset();
            self.owner.events_.refused();
          },
  };
  if (!host_.dmabuf()) return false;
  entry.params.reset(zwp_linux_dmabuf_v1_create_params(host_.dmabuf()));
  for (int i = 0; i < pixels.planeCount; ++i) {
    const DmabufPixels::Plane& plane = pixels.planes[std::size_t(i)];
    // Of further planes only the beginning is known: their lines are the layout's business.
    if (!liesInMemory(plane, i == 0 ? std::uint64_t(buffer.size.height()) : 1)) return false;
    zwp_linux_buffer_params_v1_add(entry.params.get(), plane.fd, std::uint32_t(i), plane.offset,
                                   plane.stride, std::uint32_t(pixels.modifier >> 32),
                                   std::uint32_t(pixels.modifier & 0xffffffff));
  }
  zwp_linux_buffer_params_v1_add_listener(entry.params.get(), &kListener, &entry);
  zwp_linux_buffer_params_v1_create(entry.params.get(), buffer.size.width(), buffer.size.height(),
                                    buffer.fourcc, 0);
  return true;
}

void HostBuffers::giveBack(const std::shared_ptr<Frame>& frame) {
  if (frame == newest_) return;
  const auto found = entries_.find(frame->content().buffer.get());
  if (found == entries_.end() || found->second->read != frame) frame->releaseBuffer();
}

/// Of buffers that the engine has destroyed, and that the host doesn't read.
void HostBuffers::prune() {
  std::erase_if(entries_, [](const auto& item) {
    return item.second->memory.expired() && !item.second->read;
  });
}

}  // namespace tromelo
