#pragma once

#include <xcb/xcb.h>
#include <xcb/xcbext.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace tromelo::testing {

/// For how long nobody has touched the X server's pointer or keys, by its screen saver extension.
class IdleTime {
 public:
  std::chrono::milliseconds now() {
    std::array<std::uint32_t, 2> request{0, root()};
    std::array<iovec, 4> parts{};
    parts[2] = {.iov_base = request.data(), .iov_len = sizeof request};
    constexpr std::uint8_t kQueryInfo = 1;
    const xcb_protocol_request_t kind{
        .count = 2, .ext = &extension_, .opcode = kQueryInfo, .isvoid = 0};
    const unsigned sequence = xcb_send_request(server_.get(), 0, &parts[2], &kind);
    const std::unique_ptr<void, decltype(&std::free)> reply(
        xcb_wait_for_reply(server_.get(), sequence, nullptr), &std::free);
    std::uint32_t milliseconds = 0;
    if (reply) std::memcpy(&milliseconds, static_cast<char*>(reply.get()) + 16, 4);
    return std::chrono::milliseconds(milliseconds);
  }

 private:
  std::uint32_t root() { return xcb_setup_roots_iterator(xcb_get_setup(server_.get())).data->root; }

  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> server_{
      xcb_connect(nullptr, nullptr), &xcb_disconnect};
  xcb_extension_t extension_{.name = "MIT-SCREEN-SAVER", .global_id = 0};
};

}  // namespace tromelo::testing
