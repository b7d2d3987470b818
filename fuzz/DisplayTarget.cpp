#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <deque>
#include <map>

#include "RecordingHost.h"
#include "Targets.h"
#include "TestClient.h"
#include "display/ColorManagerGlobal.h"
#include "display/HostConnection.h"
#include "display/PrivateDisplay.h"
#include "platform/UniqueFd.h"
#include "support/WaitFor.h"

namespace tromelo::fuzz {

namespace {

using testing::RecordingHost;

class NoSink final : public VideoSink {
 public:
  void commit(std::shared_ptr<Frame>) override {}
};

/// The private display, with all that it can announce.
struct Display {
  Display() {
    VideoSinkKind kind =
        chooseVideoSink({.asked = "scene", .drawsWithOpenGl = [] { return false; }});
    kind.dmabuf = DmabufSupport{0xe280, {{0xe280, 0, {{0x34325258, {0}}}}}};
    kind.announceMore = [this](wl_display* display) { announceColorManager(display, *host); };
    check(!display.start({QSize(1280, 800), 60'000}, kind));
    QObject::connect(&display, &PrivateDisplay::windowAdded, &display, [](EngineWindow* window) {
      window->setSink(std::make_shared<NoSink>());
      window->setHostState({.size = {640, 360}, .activated = true, .shown = true});
    });
  }

  std::string lacks;
  RecordingHost recorder{{RecordingHost::Feature::colorManager, RecordingHost::Feature::dmabuf}};
  std::shared_ptr<HostConnection> host = HostConnection::open(recorder.client(), nullptr, &lacks);
  PrivateDisplay display;
};

/// A client that sends what an input says, however wrong.
class WildClient {
 public:
  explicit WildClient(const QByteArray& socket) : client_(socket) {
    check(client_.display != nullptr);
    wl_log_set_handler_client([](const char*, va_list) {});  // faults are what it is here for
    add(wl_registry_interface, reinterpret_cast<wl_proxy*>(client_.registry.get()));
    for (const auto& [proxy, interface] :
         {std::pair<void*, const wl_interface*>{client_.compositor.get(), &wl_compositor_interface},
          {client_.shm.get(), &wl_shm_interface},
          {client_.shell.get(), &xdg_wm_base_interface},
          {client_.viewporter.get(), &wp_viewporter_interface},
          {client_.presentation.get(), &wp_presentation_interface},
          {client_.dmabuf.get(), &zwp_linux_dmabuf_v1_interface},
          {client_.colorManager.get(), &wp_color_manager_v1_interface}})
      if (proxy) add(*interface, static_cast<wl_proxy*>(proxy));
  }
  ~WildClient() {
    for (wl_proxy* proxy : made_) wl_proxy_destroy(proxy);
  }

  /// "interface.request argument…": a number for each, which is how many objects of that kind are
  /// newer where one is asked for, "-1" for none, and "last" for the serial of the newest configure
  /// event; or "raw", and the bytes. False when the display
  /// has had enough.
  bool send(Input line) {
    const auto interface = line.until(".");
    const auto request = line.word();
    if (interface == "raw")
      return ::send(wl_display_get_fd(client_.display.get()), line.rest().data(),
                    line.rest().size(), MSG_NOSIGNAL) >= 0;
    if (interface == "wait") return client_.roundtrip();
    const auto found = objects_.find(interface);
    if (found == objects_.end() || found->second.empty()) return true;
    const auto age = std::size_t(line.number()) % found->second.size();
    const Object object = found->second[age];
    for (int i = 0; i < object.interface->method_count; ++i)
      if (request == object.interface->methods[i].name) marshal(object, std::uint32_t(i), line);
    return wl_display_get_error(client_.display.get()) == 0;
  }
  bool roundtrip() { return client_.roundtrip(); }

 private:
  struct Object {
    const wl_interface* interface;
    wl_proxy* proxy;
  };

  void add(const wl_interface& interface, wl_proxy* proxy) {
    objects_[interface.name].push_front({&interface, proxy});
    static constexpr xdg_surface_listener kListener{
        .configure = [](void* serial, xdg_surface*, std::uint32_t newest) {
          *static_cast<std::uint32_t*>(serial) = newest;
        }};
    if (&interface == &xdg_surface_interface)
      xdg_surface_add_listener(reinterpret_cast<xdg_surface*>(proxy), &kListener, &serial_);
  }

  wl_object* find(const wl_interface* interface, std::int64_t age) {
    if (age < 0 || !interface) return nullptr;
    const auto& objects = objects_[interface->name];
    return objects.empty()
               ? nullptr
               : reinterpret_cast<wl_object*>(objects[std::size_t(age) % objects.size()].proxy);
  }

  static int memory(std::int64_t size) {
    const int file = memfd_create("fuzz", MFD_CLOEXEC);
    if (ftruncate(file, std::clamp<std::int64_t>(size, 0, 1 << 20)) != 0) return file;
    return file;
  }

  void marshal(const Object& object, std::uint32_t opcode, Input& line) {
    const wl_message& message = object.interface->methods[opcode];
    // libwayland ends the process of a client that sends what its own version hasn't.
    std::string_view signature = message.signature;
    std::uint32_t since = 0;
    while (!signature.empty() && std::isdigit(signature.front())) {
      since = since * 10 + std::uint32_t(signature.front() - '0');
      signature.remove_prefix(1);
    }
    if (since > wl_proxy_get_version(object.proxy) || signature.find("su") == 0) return;
    std::vector<wl_argument> arguments;
    std::deque<std::string> texts;
    std::deque<UniqueFd> files;  // libwayland sends others of the same
    wl_array bytes{0, 0, nullptr};
    const wl_interface* made = nullptr;
    bool isOptional = false;
    for (const char type : signature) {
      if (type == '?') {
        isOptional = true;
        continue;
      }
      wl_argument argument{};
      const wl_interface* interface = message.types[arguments.size()];
      const std::string text(type == 'n' ? "" : line.word());
      const auto number = Input(text).number();
      if (type == 's') argument.s = texts.emplace_back(text).c_str();
      if (type == 'a') argument.a = &bytes;
      if (type == 'h') argument.h = files.emplace_back(memory(number)).get();
      if (type == 'n') made = interface;
      if (type == 'u' || type == 'i' || type == 'f')
        argument.i = std::int32_t(text == "last" ? serial_ : number);
      if (type == 'o') {
        argument.o = find(interface, number);
        if (!argument.o && !isOptional) argument.o = find(interface, 0);
        if (!argument.o && !isOptional) return;
      }
      isOptional = false;
      arguments.push_back(argument);
    }
    if (!made && signature.find('n') != std::string_view::npos) return;
    wl_proxy* proxy = wl_proxy_marshal_array_flags(object.proxy, opcode, made,
                                                   made ? wl_proxy_get_version(object.proxy) : 0, 0,
                                                   arguments.data());
    if (!proxy) return;
    made_.push_back(proxy);
    add(*made, proxy);
  }

  testing::TestClient client_;
  std::map<std::string, std::deque<Object>, std::less<>> objects_;  // the newest first
  std::vector<wl_proxy*> made_;
  std::uint32_t serial_ = 0;
};

}  // namespace

/// A request a line. Whatever it is, the display serves the next client.
void display(Input input) {
  static Display shown;
  {
    WildClient client(shown.display.socketPath());
    while (!input.isEmpty() && client.send(Input(input.line()))) testing::settle();
    client.roundtrip();
  }
  testing::settle();
  shown.recorder.forget();
  testing::TestClient next(shown.display.socketPath());
  check(next.display && next.roundtrip());
}

}  // namespace tromelo::fuzz
