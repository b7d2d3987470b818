#pragma once

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>
#include <xkbcommon/xkbcommon.h>

#include <QHash>
#include <QPoint>
#include <QRegularExpression>
#include <QSize>
#include <QStringList>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <list>

#include "wlr-hand-client-protocol.h"

namespace tromelo::testing {

/// A person's pointer, keyboard and view of the windows on a Wayland host that is built on wlroots.
/// Each call returns when the host has taken it.
struct WaylandHand {
  /// Of the host that WAYLAND_DISPLAY names.
  WaylandHand() {
    static constexpr zwlr_foreign_toplevel_handle_v1_listener kWindow{
        .title = [](void* window, zwlr_foreign_toplevel_handle_v1*,
                    const char* title) { static_cast<Window*>(window)->title = title; },
        .app_id = [](void*, zwlr_foreign_toplevel_handle_v1*, const char*) {},
        .output_enter = [](void*, zwlr_foreign_toplevel_handle_v1*, wl_output*) {},
        .output_leave = [](void*, zwlr_foreign_toplevel_handle_v1*, wl_output*) {},
        .state =
            [](void* window, zwlr_foreign_toplevel_handle_v1*, wl_array* states) {
              constexpr std::uint32_t kActivated = 2;
              const auto* all = static_cast<const std::uint32_t*>(states->data);
              static_cast<Window*>(window)->active =
                  std::count(all, all + states->size / sizeof *all, kActivated) > 0;
            },
        .done = [](void*, zwlr_foreign_toplevel_handle_v1*) {},
        .closed =
            [](void* window, zwlr_foreign_toplevel_handle_v1*) {
              static_cast<Window*>(window)->title = {};
            },
    };
    static constexpr zwlr_foreign_toplevel_manager_v1_listener kWindows{
        .toplevel =
            [](void* hand, zwlr_foreign_toplevel_manager_v1*,
               zwlr_foreign_toplevel_handle_v1* handle) {
              Window& window =
                  static_cast<WaylandHand*>(hand)->windows.emplace_back(Window{handle, {}});
              zwlr_foreign_toplevel_handle_v1_add_listener(handle, &kWindow, &window);
            },
        .finished = [](void*, zwlr_foreign_toplevel_manager_v1*) {},
    };
    static constexpr wl_registry_listener kRegistry{
        .global =
            [](void* self, wl_registry*, std::uint32_t name, const char* offered, std::uint32_t) {
              auto& hand = *static_cast<WaylandHand*>(self);
              hand.bind(offered, name, wl_seat_interface, hand.seat) ||
                  hand.bind(offered, name, zwlr_virtual_pointer_manager_v1_interface,
                            hand.pointers) ||
                  hand.bind(offered, name, zwp_virtual_keyboard_manager_v1_interface,
                            hand.keyboards) ||
                  hand.bind(offered, name, zwlr_foreign_toplevel_manager_v1_interface,
                            hand.windowList);
            },
        .global_remove = [](void*, wl_registry*, std::uint32_t) {},
    };
    wl_registry_add_listener(registry, &kRegistry, this);
    take();
    zwlr_foreign_toplevel_manager_v1_add_listener(windowList, &kWindows, this);
    pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(pointers, seat);
    keyboard = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(keyboards, seat);
    sendKeymap();
    take();
  }
  ~WaylandHand() {
    wl_display_disconnect(display);
    xkb_state_unref(state);
    xkb_keymap_unref(keymap);
    xkb_context_unref(context);
  }

  void move(QPoint place, QSize screen) {
    zwlr_virtual_pointer_v1_motion_absolute(pointer, now(), std::uint32_t(place.x()),
                                            std::uint32_t(place.y()), std::uint32_t(screen.width()),
                                            std::uint32_t(screen.height()));
    zwlr_virtual_pointer_v1_frame(pointer);
    take();
  }

  /// As X11 numbers them; 4 and 5 are one step of the wheel, up and down.
  void setButton(int button, bool down) {
    constexpr int kWheelUp = 4;
    constexpr int kWheelDown = 5;
    if (button == kWheelUp || button == kWheelDown) {
      const int steps = button == kWheelUp ? -1 : 1;
      if (!down) return;
      zwlr_virtual_pointer_v1_axis_source(pointer, WL_POINTER_AXIS_SOURCE_WHEEL);
      zwlr_virtual_pointer_v1_axis_discrete(pointer, now(), WL_POINTER_AXIS_VERTICAL_SCROLL,
                                            wl_fixed_from_int(15 * steps), steps);
    } else {
      zwlr_virtual_pointer_v1_button(pointer, now(), BTN_LEFT, down);
    }
    zwlr_virtual_pointer_v1_frame(pointer);
    take();
  }

  /// "ctrl+shift+l", in X11's names.
  void setKeys(const QString& keys, bool down) {
    static const QHash<QString, QString> kModifiers{
        {"ctrl", "Control_L"}, {"shift", "Shift_L"}, {"alt", "Alt_L"}};
    std::vector<xkb_keycode_t> codes;
    for (const QString& key : keys.split(u'+')) {
      const QByteArray name = kModifiers.value(key, key).toUtf8();
      const xkb_keysym_t symbol = xkb_keysym_from_name(name.constData(), XKB_KEYSYM_NO_FLAGS);
      const xkb_keycode_t code = codeOf(symbol);
      EXPECT_NE(code, XKB_KEYCODE_INVALID) << name.constData();
      const xkb_keysym_t* plain = nullptr;
      if (xkb_keymap_key_get_syms_by_level(keymap, code, 0, 0, &plain) != 1 || plain[0] != symbol)
        codes.push_back(codeOf(XKB_KEY_Shift_L));
      codes.push_back(code);
    }
    if (!down) std::reverse(codes.begin(), codes.end());
    for (const xkb_keycode_t code : codes) setKey(code, down);
  }

  /// Whether there is a window whose title matches; `active`: that has the keyboard.
  bool hasWindow(const QString& titlePattern, bool active = false) {
    return find(titlePattern, active) != nullptr;
  }
  void activate(const QString& titlePattern) {
    if (auto* window = find(titlePattern, false))
      zwlr_foreign_toplevel_handle_v1_activate(window->handle, seat);
    take();
  }

 private:
  struct Window {
    zwlr_foreign_toplevel_handle_v1* handle;
    QString title;
    bool active = false;
  };

  wl_display* display = wl_display_connect(nullptr);
  wl_registry* registry = wl_display_get_registry(display);
  wl_seat* seat = nullptr;
  zwlr_virtual_pointer_manager_v1* pointers = nullptr;
  zwp_virtual_keyboard_manager_v1* keyboards = nullptr;
  zwlr_foreign_toplevel_manager_v1* windowList = nullptr;
  zwlr_virtual_pointer_v1* pointer = nullptr;
  zwp_virtual_keyboard_v1* keyboard = nullptr;
  std::list<Window> windows;
  xkb_context* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
  xkb_keymap* keymap = xkb_keymap_new_from_names(context, nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS);
  xkb_state* state = xkb_state_new(keymap);

  /// Milliseconds: two presses are told from a double click by it, and a key that is pressed again
  /// from one that is held. So no two are the same.
  std::uint32_t now() {
    using namespace std::chrono;
    const auto clock = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    return last = std::max(last + 1, std::uint32_t(clock));
  }
  std::uint32_t last = 0;

  template <typename T>
  bool bind(const char* offered, std::uint32_t name, const wl_interface& wanted, T*& proxy) {
    if (std::strcmp(offered, wanted.name) != 0) return false;
    proxy = static_cast<T*>(wl_registry_bind(registry, name, &wanted, 1));
    return true;
  }
  void take() { wl_display_roundtrip(display); }
  void sendKeymap() {
    char* text = xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1);
    const std::size_t size = std::strlen(text) + 1;
    const int file = memfd_create("keymap", MFD_CLOEXEC);
    [[maybe_unused]] const ssize_t written = ::write(file, text, size);
    zwp_virtual_keyboard_v1_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file,
                                   std::uint32_t(size));
    ::close(file);
    std::free(text);
  }

  void setKey(xkb_keycode_t code, bool down) {
    constexpr xkb_keycode_t kEvdev = 8;  // what XKB counts more
    zwp_virtual_keyboard_v1_key(keyboard, now(), code - kEvdev, down);
    xkb_state_update_key(state, code, down ? XKB_KEY_DOWN : XKB_KEY_UP);
    zwp_virtual_keyboard_v1_modifiers(keyboard,
                                      xkb_state_serialize_mods(state, XKB_STATE_MODS_DEPRESSED),
                                      xkb_state_serialize_mods(state, XKB_STATE_MODS_LATCHED),
                                      xkb_state_serialize_mods(state, XKB_STATE_MODS_LOCKED), 0);
    take();
  }

  /// The key that has it unshifted or, failing that, shifted.
  xkb_keycode_t codeOf(xkb_keysym_t symbol) const {
    for (xkb_level_index_t level : {0U, 1U})
      for (xkb_keycode_t code = xkb_keymap_min_keycode(keymap);
           code <= xkb_keymap_max_keycode(keymap); ++code) {
        const xkb_keysym_t* symbols = nullptr;
        if (xkb_keymap_key_get_syms_by_level(keymap, code, 0, level, &symbols) == 1 &&
            symbols[0] == symbol)
          return code;
      }
    return XKB_KEYCODE_INVALID;
  }

  Window* find(const QString& titlePattern, bool active) {
    take();
    const QRegularExpression pattern(titlePattern);
    for (Window& window : windows)
      if (!window.title.isEmpty() && pattern.match(window.title).hasMatch() &&
          (window.active || !active))
        return &window;
    return nullptr;
  }
};

}  // namespace tromelo::testing
