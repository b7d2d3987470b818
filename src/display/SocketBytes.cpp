#include "display/SocketBytes.h"

#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <span>

namespace tromelo {

namespace {

constexpr std::size_t kMostBytes = 16384;     // at once
constexpr std::size_t kMostDescriptors = 28;  // Wayland's libraries take no more with one message

struct alignas(cmsghdr) Control {
  std::array<std::byte, CMSG_SPACE(kMostDescriptors * sizeof(int))> bytes;
};

template <typename Call>
ssize_t again(Call call) {
  ssize_t size = 0;
  do size = call();
  while (size < 0 && errno == EINTR);
  return size;
}

void takeDescriptors(msghdr& message, std::vector<UniqueFd>& descriptors) {
  for (cmsghdr* part = CMSG_FIRSTHDR(&message); part; part = CMSG_NXTHDR(&message, part)) {
    if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS) continue;
    for (std::size_t at = CMSG_LEN(0); at < part->cmsg_len; at += sizeof(int)) {
      int descriptor = -1;
      std::memcpy(&descriptor, reinterpret_cast<std::byte*>(part) + at, sizeof descriptor);
      descriptors.emplace_back(descriptor);
    }
  }
}

void putDescriptors(msghdr& message, Control& control, std::span<const UniqueFd> descriptors) {
  if (descriptors.empty()) return;
  message.msg_control = control.bytes.data();
  message.msg_controllen = CMSG_SPACE(descriptors.size_bytes());
  cmsghdr* part = CMSG_FIRSTHDR(&message);
  part->cmsg_level = SOL_SOCKET;
  part->cmsg_type = SCM_RIGHTS;
  part->cmsg_len = CMSG_LEN(descriptors.size_bytes());
  std::byte* to = reinterpret_cast<std::byte*>(CMSG_DATA(part));
  for (const UniqueFd& descriptor : descriptors) {
    const int number = descriptor.get();
    to = std::ranges::copy(std::as_bytes(std::span(&number, 1)), to).out;
  }
}

}  // namespace

bool SocketBytes::receive(int socket) {
  const std::size_t before = bytes.size();
  bytes.resize(before + kMostBytes);
  iovec room{bytes.data() + before, kMostBytes};
  Control control;
  msghdr message{};
  message.msg_iov = &room;
  message.msg_iovlen = 1;
  message.msg_control = control.bytes.data();
  message.msg_controllen = control.bytes.size();
  const ssize_t size =
      again([&] { return recvmsg(socket, &message, MSG_DONTWAIT | MSG_CMSG_CLOEXEC); });
  const int error = errno;
  bytes.resize(before + std::size_t(std::max<ssize_t>(size, 0)));
  if (size < 0) return error == EAGAIN;
  takeDescriptors(message, descriptors);
  return size > 0;
}

bool SocketBytes::send(int socket) {
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    const std::size_t count = std::min(descriptors.size(), kMostDescriptors);
    const bool isLast = count == descriptors.size();
    iovec part{bytes.data() + sent, isLast ? bytes.size() - sent : 1};
    Control control{};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    putDescriptors(message, control, std::span(descriptors).first(count));
    const ssize_t size =
        again([&] { return sendmsg(socket, &message, MSG_DONTWAIT | MSG_NOSIGNAL); });
    if (size < 0 && errno != EAGAIN) return false;
    if (size < 0) break;
    sent += std::size_t(size);
    descriptors.erase(descriptors.begin(), descriptors.begin() + std::ptrdiff_t(count));
  }
  bytes.erase(bytes.begin(), bytes.begin() + std::ptrdiff_t(sent));
  return true;
}

}  // namespace tromelo
