#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <thread>
#include <unordered_map>
#include <utility>
#include <vector>

#include "display/SocketBytes.h"
#include "platform/UniqueFd.h"

namespace tromelo {

/// Stands between Qt and the Wayland host and passes on what either says, on a thread of its own.
/// Events of objects that it was told of don't reach Qt's connection but who waits for them: Qt has
/// the main thread read for whatever comes there, however little it means to Qt.
class HostRelay {
 public:
  struct Event {
    std::uint32_t object = 0;
    std::uint32_t opcode = 0;
    std::vector<std::uint32_t> arguments;
  };
  using Handler = std::function<void(const Event&)>;

  /// Where Qt is going to look for a Wayland host, has it find the relay. Before the application
  /// object, which opens the connection; then ask isTaken(). None where there is nothing to relay.
  static std::unique_ptr<HostRelay> offer();
  /// Of a connection to the host that nobody has used. None where the system gives too little.
  static std::unique_ptr<HostRelay> between(UniqueFd host);
  /// After whoever has the client's end; what was said until then is passed on.
  ~HostRelay();
  HostRelay(const HostRelay&) = delete;
  HostRelay& operator=(const HostRelay&) = delete;

  /// Whether Qt has opened its connection through what offer() gave. If not, nobody will.
  bool isTaken() const;
  /// The number of the client's end, while the client keeps it open.
  int clientEnd() const { return clientNumber_; }
  /// Gives that end away.
  UniqueFd takeClientEnd() { return std::move(clientEnd_); }

  /// Handlers are called in tasks that `deliver` is given, on this thread; they run elsewhere.
  /// None: nothing is diverted. Any thread; waits for a delivery that is under way.
  void deliverTo(std::function<void(std::function<void()>)> deliver);
  /// The events of `object` go to `handler` as long as that lives. Before the request is made that
  /// leads to the first of them; only for events without descriptors and new objects. Any thread.
  void divert(std::uint32_t object, std::weak_ptr<const Handler> handler);

 private:
  using Deliveries = std::vector<std::pair<std::weak_ptr<const Handler>, Event>>;

  HostRelay(UniqueFd host, UniqueFd ours, UniqueFd clients);

  void serve();
  bool exchange();
  void sendToHost();
  void readHost();
  std::size_t sort(std::span<const std::byte> events);
  bool isDiverted(std::span<const std::byte> event, Deliveries& deliveries);

  UniqueFd host_, ours_, clientEnd_;
  const int clientNumber_;
  // This thread's.
  SocketBytes toHost_, fromHost_, toClient_;
  std::vector<std::byte> held_;  // that names are free again: not worth a wake
  bool hostSpeaks_ = true;
  bool hostListens_ = true;

  std::mutex mutex_;
  std::function<void(std::function<void()>)> deliver_;
  std::unordered_map<std::uint32_t, std::weak_ptr<const Handler>> diverted_;
  std::thread thread_;
};

}  // namespace tromelo
