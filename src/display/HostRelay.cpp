#include "display/HostRelay.h"

#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/socket.h>
#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "display/BlockedSignals.h"

namespace tromelo {

namespace {

constexpr const char* kVariable = "WAYLAND_SOCKET";  // libwayland's: a connection that is open

// Of the protocol itself: an event begins with its object, its size in bytes and its opcode.
constexpr std::size_t kHeader = 8;
constexpr std::uint32_t kDisplay = 1;
constexpr std::uint32_t kDeleteId = 1;
constexpr std::size_t kDeleteIdSize = kHeader + sizeof(std::uint32_t);

/// Some seconds of a film. Each is a few bytes, here and with the host.
constexpr std::size_t kMostHeld = 512 * kDeleteIdSize;

std::uint32_t word(std::span<const std::byte> bytes, std::size_t index) {
  std::uint32_t value = 0;
  std::memcpy(&value, bytes.data() + index * sizeof value, sizeof value);
  return value;
}

HostRelay::Event eventOf(std::span<const std::byte> message) {
  HostRelay::Event event{word(message, 0), word(message, 1) & 0xffff, {}};
  for (std::size_t i = 2; i < message.size() / sizeof(std::uint32_t); ++i)
    event.arguments.push_back(word(message, i));
  return event;
}

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

/// Where it is wrong nobody takes the relay, or nobody needs it: nothing else depends on it.
bool willBeShownByHost() {
  const auto platform = environment("QT_QPA_PLATFORM");
  return (platform.empty() || platform.starts_with("wayland")) &&
         !(environment("WAYLAND_DISPLAY").empty() && environment(kVariable).empty()) &&
         environment("TROMELO_PICTURE") != "scene";
}

/// As libwayland finds the host. Nothing is said on a connection before somebody asks something.
UniqueFd connectToHost() {
  wl_display* display = wl_display_connect(nullptr);
  if (!display) return {};
  UniqueFd host(fcntl(wl_display_get_fd(display), F_DUPFD_CLOEXEC, 0));
  wl_display_disconnect(display);
  return host;
}

}  // namespace

std::unique_ptr<HostRelay> HostRelay::offer() {
  if (!willBeShownByHost()) return nullptr;
  UniqueFd host = connectToHost();
  if (!host) return nullptr;
  auto relay = between(std::move(host));
  if (relay) setenv(kVariable, std::to_string(relay->takeClientEnd().release()).c_str(), 1);
  return relay;
}

std::unique_ptr<HostRelay> HostRelay::between(UniqueFd host) {
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return nullptr;
  // Not make_unique: the constructor is ours alone.
  return std::unique_ptr<HostRelay>(
      new HostRelay(std::move(host), UniqueFd(ends[0]), UniqueFd(ends[1])));
}

HostRelay::HostRelay(UniqueFd host, UniqueFd ours, UniqueFd clients)
    : host_(std::move(host)),
      ours_(std::move(ours)),
      clientEnd_(std::move(clients)),
      clientNumber_(clientEnd_.get()) {
  const BlockedSignals blocked;
  thread_ = std::thread([this] { serve(); });
}

HostRelay::~HostRelay() {
  shutdown(ours_.get(), SHUT_RDWR);
  thread_.join();
}

/// libwayland takes the variable away when it uses it.
bool HostRelay::isTaken() const {
  if (environment(kVariable) != std::to_string(clientNumber_)) return true;
  unsetenv(kVariable);
  close(clientNumber_);
  return false;
}

void HostRelay::deliverTo(std::function<void(std::function<void()>)> deliver) {
  const std::scoped_lock lock(mutex_);
  deliver_ = std::move(deliver);
}

void HostRelay::divert(std::uint32_t object, std::weak_ptr<const Handler> handler) {
  const std::scoped_lock lock(mutex_);
  if (deliver_) diverted_[object] = std::move(handler);
}

void HostRelay::serve() {
  pthread_setname_np(pthread_self(), "relay");
  while (exchange()) {
  }
  // Each sees the other go, and may read first what it has been told.
  shutdown(ours_.get(), SHUT_RDWR);
  host_.reset();
}

/// Whoever says more than the other takes isn't read from until that has taken it: then its socket
/// fills up, as it would without us.
bool HostRelay::exchange() {
  const bool readsHost = hostSpeaks_ && toClient_.bytes.empty();
  const bool readsClient = hostListens_ && toHost_.bytes.empty();
  if (!hostSpeaks_ && toClient_.bytes.empty()) return false;
  const auto wait = [](int socket, bool reads, bool writes) {
    return pollfd{socket, short((reads ? POLLIN : 0) | (writes ? POLLOUT : 0)), 0};
  };
  std::array waits{wait(host_.get(), readsHost, !toHost_.bytes.empty()),
                   wait(ours_.get(), readsClient, !toClient_.bytes.empty())};
  if (!waits[0].events) waits[0].fd = -1;  // that it has hung up is found out later
  if (poll(waits.data(), waits.size(), -1) < 0) return errno == EINTR;
  const bool clientIsGone = (waits[1].revents & (POLLHUP | POLLERR)) != 0;
  if (clientIsGone && !readsClient) return false;
  if (readsHost && waits[0].revents) readHost();
  const bool clientSpeaks = !readsClient || !waits[1].revents || toHost_.receive(ours_.get());
  sendToHost();
  if (!toClient_.send(ours_.get())) toClient_ = {};
  return clientSpeaks;
}

/// What the host has said before it went is still to be heard.
void HostRelay::sendToHost() {
  if (!hostListens_ || toHost_.send(host_.get())) return;
  hostListens_ = false;
  toHost_ = {};
  shutdown(ours_.get(), SHUT_RD);
}

void HostRelay::readHost() {
  hostSpeaks_ = fromHost_.receive(host_.get());
  const std::size_t sorted = sort(fromHost_.bytes);
  fromHost_.bytes.erase(fromHost_.bytes.begin(), fromHost_.bytes.begin() + std::ptrdiff_t(sorted));
  std::ranges::move(fromHost_.descriptors, std::back_inserter(toClient_.descriptors));
  fromHost_.descriptors.clear();
  if (toClient_.bytes.empty() && held_.size() < kMostHeld) return;
  toClient_.bytes.insert(toClient_.bytes.begin(), held_.begin(), held_.end());
  held_.clear();
}

/// Gives the size of the events that are whole.
std::size_t HostRelay::sort(std::span<const std::byte> events) {
  Deliveries deliveries;
  std::size_t at = 0;
  const std::scoped_lock lock(mutex_);
  while (events.size() - at >= kHeader) {
    const std::size_t size = word(events.subspan(at), 1) >> 16;
    if (size < kHeader) hostSpeaks_ = false;  // nor would Qt go on from here
    if (size < kHeader || events.size() - at < size) break;
    const auto event = events.subspan(at, size);
    if (!isDiverted(event, deliveries))
      toClient_.bytes.insert(toClient_.bytes.end(), event.begin(), event.end());
    at += size;
  }
  if (!deliveries.empty())
    deliver_([deliveries = std::move(deliveries)] {
      for (const auto& [waiting, event] : deliveries)
        if (const auto handler = waiting.lock()) (*handler)(event);
    });
  return at;
}

/// With the lock.
bool HostRelay::isDiverted(std::span<const std::byte> event, Deliveries& deliveries) {
  if (!deliver_) return false;
  const std::uint32_t object = word(event, 0);
  const std::uint32_t opcode = word(event, 1) & 0xffff;
  if (object == kDisplay && opcode == kDeleteId && event.size() == kDeleteIdSize &&
      diverted_.erase(word(event, 2)) > 0) {
    held_.insert(held_.end(), event.begin(), event.end());
    return true;
  }
  const auto found = diverted_.find(object);
  if (found == diverted_.end() || found->second.expired()) return false;
  deliveries.emplace_back(found->second, eventOf(event));
  return true;
}

}  // namespace tromelo
