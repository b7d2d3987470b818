#pragma once

#include <QRect>
#include <QSize>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "TestBuffer.h"

namespace tromelo::testing {

/// A window of the tests' client. It acknowledges every configure event and remembers the last.
class TestToplevel {
 public:
  struct Configure {
    QSize size;
    std::set<std::uint32_t> states;  // xdg_toplevel_state
    friend bool operator==(const Configure&, const Configure&) = default;
  };
  struct Presentation {
    bool presented = false;  // else discarded
    std::uint64_t nanoseconds = 0;
    std::uint32_t refresh = 0;
    std::uint64_t sequence = 0;
    std::uint32_t flags = 0;
    friend bool operator==(const Presentation&, const Presentation&) = default;
  };
  /// Answers to one commit.
  struct Answers {
    int frameCallbacks = 0;
    std::uint32_t callbackTime = 0;  // milliseconds
    std::optional<Presentation> presentation;
  };

  explicit TestToplevel(TestClient& client);
  ~TestToplevel();
  TestToplevel(const TestToplevel&) = delete;
  TestToplevel& operator=(const TestToplevel&) = delete;

  wl_surface* surface() const { return surface_.get(); }
  xdg_toplevel* toplevel() const { return toplevel_.get(); }
  const std::optional<Configure>& configure() const { return configure_; }
  bool isSuspended() const { return configure_->states.contains(XDG_TOPLEVEL_STATE_SUSPENDED); }
  int configures() const { return configures_; }

  /// The commit without a buffer that asks for the first configure event, and waits for that.
  void start();
  /// Shows `buffer`, all of it damaged or just `damage`; a null one takes the picture away.
  std::shared_ptr<const Answers> commit(const TestBuffer* buffer, QRect damage = {});

 private:
  void listen();

  TestClient& client_;
  Proxy<wl_surface> surface_;
  Proxy<xdg_surface> xdgSurface_;
  Proxy<xdg_toplevel> toplevel_;
  Configure next_;
  std::optional<Configure> configure_;
  int configures_ = 0;
  struct Pending;
  std::vector<std::unique_ptr<Pending>> pending_;
};

}  // namespace tromelo::testing
