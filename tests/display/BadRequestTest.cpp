// A client that sends nonsense hears of it, and nobody else does.
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

#include "DisplayTest.h"

namespace tromelo::testing {
namespace {

using Send = void (*)(TestClient& client);

struct BadRequest {
  const char* name;
  Send send;
  const char* faulty;
};

void PrintTo(const BadRequest& request, std::ostream* out) { *out << request.name; }

void createBuffer(TestClient& client, int poolSize, QSize size, int stride, std::uint32_t format) {
  const UniqueFd memory(memfd_create("tromelo-test", MFD_CLOEXEC));
  ASSERT_EQ(ftruncate(memory.get(), 4096), 0);
  const Proxy<wl_shm_pool> pool(wl_shm_create_pool(client.shm(), memory.get(), poolSize));
  const Proxy<wl_buffer> buffer(
      wl_shm_pool_create_buffer(pool.get(), 0, size.width(), size.height(), stride, format));
  client.roundtrip();
}

const BadRequest badRequests[] = {
    {"AnEmptyPool",
     [](TestClient& c) { createBuffer(c, 0, QSize(8, 8), 32, WL_SHM_FORMAT_XRGB8888); }, "wl_shm"},
    {"AStrideShorterThanALine",
     [](TestClient& c) { createBuffer(c, 4096, QSize(8, 8), 16, WL_SHM_FORMAT_XRGB8888); },
     "wl_shm_pool"},
    {"ABufferLargerThanItsPool",
     [](TestClient& c) { createBuffer(c, 4096, QSize(64, 64), 256, WL_SHM_FORMAT_XRGB8888); },
     "wl_shm_pool"},
    {"ANegativeSize",
     [](TestClient& c) { createBuffer(c, 4096, QSize(-8, 8), 32, WL_SHM_FORMAT_XRGB8888); },
     "wl_shm_pool"},
    {"AFormatThatWasNotOffered",
     [](TestClient& c) { createBuffer(c, 4096, QSize(8, 8), 32, WL_SHM_FORMAT_XRGB2101010); },
     "wl_shm_pool"},
    {"ABufferBeforeTheFirstConfigure",
     [](TestClient& c) {
       const auto buffer = plainBuffer(c, QSize(8, 8));
       TestToplevel(c).commit(buffer.get());
     },
     "xdg_surface"},
    {"ASecondRole",
     [](TestClient& c) {
       TestToplevel toplevel(c);
       const Proxy<xdg_toplevel> second(xdg_surface_get_toplevel(toplevel.xdgSurface()));
       c.roundtrip();
     },
     "xdg_wm_base"},
    {"AnAcknowledgementOfNothing",
     [](TestClient& c) {
       TestToplevel toplevel(c);
       toplevel.start();
       xdg_surface_ack_configure(toplevel.xdgSurface(), 123456);
       c.roundtrip();
     },
     "xdg_wm_base"},
    {"ACropOutsideTheBuffer",
     [](TestClient& c) {
       const auto buffer = plainBuffer(c, QSize(8, 8));
       TestToplevel toplevel(c);
       toplevel.start();
       const Proxy<wp_viewport> viewport(
           wp_viewporter_get_viewport(c.viewporter(), toplevel.surface()));
       wp_viewport_set_source(viewport.get(), 0, 0, wl_fixed_from_int(100), wl_fixed_from_int(100));
       toplevel.commit(buffer.get());
     },
     "wp_viewport"},
    {"MemoryThatIsNotThere",
     [](TestClient& c) {
       const auto buffer = plainBuffer(c, QSize(64, 64));
       ASSERT_EQ(ftruncate(buffer->fd(), 4096), 0);
       TestToplevel toplevel(c);
       toplevel.start();
       toplevel.commit(buffer.get());
     },
     "wl_display"},
    {"MemoryThatGoesWhileItIsUsed",
     [](TestClient& c) {
       const auto buffer = plainBuffer(c, QSize(64, 64));
       TestToplevel toplevel(c);
       toplevel.start();
       toplevel.commit(buffer.get());
       ASSERT_EQ(ftruncate(buffer->fd(), 4096), 0);
       toplevel.commit(buffer.get());
     },
     "wl_display"},
    {"LinesThatAreNotWholePixels",
     [](TestClient& c) { createBuffer(c, 4096, QSize(8, 8), 34, WL_SHM_FORMAT_XRGB8888); },
     "wl_shm_pool"},
    {"AnotherVersionThanOffered",
     [](TestClient& c) {
       wl_registry* registry = wl_display_get_registry(c.display());
       auto* bound =
           static_cast<wl_proxy*>(wl_registry_bind(registry, 1, &wl_compositor_interface, 99));
       c.roundtrip();
       wl_proxy_destroy(bound);
       wl_registry_destroy(registry);
     },
     "wl_registry"},
};

class BadRequestTest : public DisplayTest, public ::testing::WithParamInterface<BadRequest> {};

TEST_P(BadRequestTest, EndsItsConnectionOnly) {
  auto bystander = std::make_unique<TestClient>(display_->socketPath());
  auto window = std::make_unique<TestToplevel>(*bystander);
  window->start();

  GetParam().send(*client_);
  EXPECT_FALSE(client_->roundtrip());
  EXPECT_EQ(client_->faultyInterface(), GetParam().faulty);

  const auto buffer = plainBuffer(*bystander, QSize(8, 8));
  const auto answers = window->commit(buffer.get());
  EXPECT_TRUE(wait([&] {
    bystander->dispatch();
    return answers->frameCallbacks == 1;
  }));
  window.reset();
}

INSTANTIATE_TEST_SUITE_P(Requests, BadRequestTest, ::testing::ValuesIn(badRequests),
                         [](const auto& info) { return std::string(info.param.name); });

using Words = std::array<std::uint32_t, 2>;

class RawBytesTest : public DisplayTest, public ::testing::WithParamInterface<Words> {};

/// An object, then length and opcode: a whole message.
TEST_P(RawBytesTest, EndTheConnectionOnly) {
  TestClient bystander(display_->socketPath());
  const Words words = GetParam();
  const int fd = wl_display_get_fd(client_->display());
  ASSERT_EQ(send(fd, words.data(), sizeof words, MSG_NOSIGNAL), ssize_t(sizeof words));
  EXPECT_FALSE(client_->roundtrip());
  EXPECT_TRUE(bystander.roundtrip());
}

constexpr std::uint32_t wholeLength = 8u << 16;

INSTANTIATE_TEST_SUITE_P(Words, RawBytesTest,
                         ::testing::Values(Words{0xa5a5a5a5, wholeLength},  // no such object
                                           Words{1, wholeLength | 99},      // no such request
                                           Words{1, wholeLength}));         // no argument

}  // namespace
}  // namespace tromelo::testing
