#include "TestToplevel.h"

#include <limits>

namespace tromelo::testing {

struct TestToplevel::Pending {
  std::shared_ptr<Answers> answers = std::make_shared<Answers>();
  Proxy<wl_callback> callback;
  Proxy<struct wp_presentation_feedback> feedback;

  static void presented(void* self, struct wp_presentation_feedback*, std::uint32_t secondsHigh,
                        std::uint32_t secondsLow, std::uint32_t nanoseconds, std::uint32_t refresh,
                        std::uint32_t sequenceHigh, std::uint32_t sequenceLow,
                        std::uint32_t flags) {
    const std::uint64_t seconds = std::uint64_t(secondsHigh) << 32 | secondsLow;
    static_cast<Pending*>(self)->answers->presentation =
        Presentation{true, seconds * 1'000'000'000 + nanoseconds, refresh,
                     std::uint64_t(sequenceHigh) << 32 | sequenceLow, flags};
  }
};

TestToplevel::TestToplevel(TestClient& client)
    : client_(client),
      surface_(wl_compositor_create_surface(client.compositor.get())),
      xdgSurface_(xdg_wm_base_get_xdg_surface(client.shell.get(), surface_.get())),
      toplevel_(xdg_surface_get_toplevel(xdgSurface_.get())) {
  listen();
}

TestToplevel::~TestToplevel() = default;

void TestToplevel::listen() {
  static constexpr xdg_toplevel_listener toplevelListener{
      .configure =
          [](void* self, xdg_toplevel*, int width, int height, wl_array* states) {
            auto* first = static_cast<const std::uint32_t*>(states->data);
            static_cast<TestToplevel*>(self)->next_ = {
                QSize(width, height), {first, first + states->size / sizeof *first}};
          },
      .close = [](void*, xdg_toplevel*) {},
      .configure_bounds = [](void*, xdg_toplevel*, int, int) {},
      .wm_capabilities = [](void*, xdg_toplevel*, wl_array*) {},
  };
  static constexpr xdg_surface_listener surfaceListener{
      .configure = [](void* data, xdg_surface* surface, std::uint32_t serial) {
        auto& self = *static_cast<TestToplevel*>(data);
        self.configure_ = self.next_;
        ++self.configures_;
        xdg_surface_ack_configure(surface, serial);
      }};
  xdg_toplevel_add_listener(toplevel_.get(), &toplevelListener, this);
  xdg_surface_add_listener(xdgSurface_.get(), &surfaceListener, this);
}

void TestToplevel::start() {
  wl_surface_commit(surface_.get());
  while (!configure_ && client_.roundtrip()) {
  }
}

std::shared_ptr<const TestToplevel::Answers> TestToplevel::commit(const TestBuffer* buffer,
                                                                  QRect damage) {
  static constexpr wl_callback_listener callbackListener{
      .done = [](void* self, wl_callback*, std::uint32_t milliseconds) {
        Answers& answers = *static_cast<Pending*>(self)->answers;
        ++answers.frameCallbacks;
        answers.callbackTime = milliseconds;
      }};
  static constexpr wp_presentation_feedback_listener feedbackListener{
      .sync_output = [](void*, struct wp_presentation_feedback*, wl_output*) {},
      .presented = &Pending::presented,
      .discarded =
          [](void* self, struct wp_presentation_feedback*) {
            static_cast<Pending*>(self)->answers->presentation = Presentation{};
          }};
  auto pending = std::make_unique<Pending>();
  pending->callback.reset(wl_surface_frame(surface_.get()));
  wl_callback_add_listener(pending->callback.get(), &callbackListener, pending.get());
  pending->feedback.reset(wp_presentation_feedback(client_.presentation.get(), surface_.get()));
  wp_presentation_feedback_add_listener(pending->feedback.get(), &feedbackListener, pending.get());
  if (damage.isNull())
    damage = QRect(0, 0, std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
  wl_surface_attach(surface_.get(), buffer ? buffer->get() : nullptr, 0, 0);
  wl_surface_damage_buffer(surface_.get(), damage.x(), damage.y(), damage.width(), damage.height());
  wl_surface_commit(surface_.get());
  pending_.push_back(std::move(pending));
  client_.roundtrip();
  return pending_.back()->answers;
}

}  // namespace tromelo::testing
