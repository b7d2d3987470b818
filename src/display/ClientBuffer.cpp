#include "display/ClientBuffer.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "display/Wlroots.h"

namespace tromelo {

namespace {

/// Hangs the record on the buffer, so that the two end together.
struct Attachment {
  wlr_addon addon{};  // first, so that a pointer to it is a pointer to the attachment
  std::shared_ptr<const ClientBuffer> record;
};

void destroyAttachment(wlr_addon* addon) {
  const std::unique_ptr<Attachment> attachment(reinterpret_cast<Attachment*>(addon));
  wlr_addon_finish(addon);
}

constexpr wlr_addon_interface kAttachmentInterface{"tromelo-client-buffer", destroyAttachment};

/// Reading beyond the file's end would kill the process.
bool fileHolds(const wlr_shm_attributes& shm) {
  struct stat status{};
  const auto length = off_t(shm.stride) * shm.height;
  return fstat(shm.fd, &status) == 0 && status.st_size >= shm.offset + length;
}

std::shared_ptr<const ClientBuffer> describeShm(const wlr_shm_attributes& shm) {
  const auto length = std::size_t(shm.stride) * std::size_t(shm.height);
  auto pixels =
      std::make_shared<const ShmPixels>(shm.fd, std::size_t(shm.offset), length, shm.stride);
  if (!pixels->data()) return nullptr;
  return std::make_shared<ClientBuffer>(
      ClientBuffer{shm.format, QSize(shm.width, shm.height), std::move(pixels)});
}

std::shared_ptr<const ClientBuffer> describeDmabuf(const wlr_dmabuf_attributes& dmabuf) {
  DmabufPixels pixels{dmabuf.modifier, dmabuf.n_planes, {}};
  for (std::size_t i = 0; i < std::size_t(dmabuf.n_planes); ++i)
    pixels.planes[i] = {dmabuf.fd[i], dmabuf.offset[i], dmabuf.stride[i]};
  return std::make_shared<ClientBuffer>(
      ClientBuffer{dmabuf.format, QSize(dmabuf.width, dmabuf.height), pixels});
}

std::shared_ptr<const ClientBuffer> describe(wlr_buffer* buffer) {
  wlr_shm_attributes shm{};
  if (wlr_buffer_get_shm(buffer, &shm)) return fileHolds(shm) ? describeShm(shm) : nullptr;
  wlr_dmabuf_attributes dmabuf{};
  if (wlr_buffer_get_dmabuf(buffer, &dmabuf)) return describeDmabuf(dmabuf);
  return nullptr;
}

}  // namespace

ShmPixels::ShmPixels(int fd, std::size_t offset, std::size_t length, int stride)
    : fd_(fd), offset_(offset), stride_(stride) {
  const std::size_t intoPage = offset % std::size_t(sysconf(_SC_PAGESIZE));
  mappedLength_ = length + intoPage;
  mapping_ = mmap(nullptr, mappedLength_, PROT_READ, MAP_SHARED, fd, off_t(offset - intoPage));
  data_ = mapping_ == MAP_FAILED ? nullptr : static_cast<const std::byte*>(mapping_) + intoPage;
}

ShmPixels::~ShmPixels() {
  if (data_) munmap(mapping_, mappedLength_);
}

std::shared_ptr<const ClientBuffer> ClientBuffer::of(wlr_buffer* buffer) {
  if (wlr_addon* addon =
          wlr_addon_find(&buffer->addons, &kAttachmentInterface, &kAttachmentInterface)) {
    wlr_shm_attributes shm{};
    if (wlr_buffer_get_shm(buffer, &shm) && !fileHolds(shm)) return nullptr;
    return reinterpret_cast<Attachment*>(addon)->record;
  }
  auto record = describe(buffer);
  if (!record) return nullptr;
  auto attachment = std::make_unique<Attachment>();
  attachment->record = record;
  // From here on the buffer owns it.
  wlr_addon_init(&attachment.release()->addon, &buffer->addons, &kAttachmentInterface,
                 &kAttachmentInterface);
  return record;
}

}  // namespace tromelo
