#pragma once

#include <memory>

#include "display/PrivateDisplay.h"
#include "display/Wlroots.h"

namespace tromelo {

/// The one screen of the private display: a headless one with the host screen's size and refresh
/// rate. Display's thread.
class OutputHead {
 public:
  /// Announces a screen that has a mode already: without one the engine divides by zero. None when
  /// wlroots refuses.
  static std::unique_ptr<OutputHead> create(wl_display* display,
                                            const PrivateDisplay::Output& output);
  ~OutputHead();
  OutputHead(const OutputHead&) = delete;
  OutputHead& operator=(const OutputHead&) = delete;

  wlr_output* output() const { return output_; }
  wlr_backend* backend() const { return backend_; }

  bool apply(const PrivateDisplay::Output& output);

 private:
  explicit OutputHead(wlr_backend* backend) : backend_(backend) {}

  wlr_backend* backend_;
  wlr_output* output_ = nullptr;
};

}  // namespace tromelo
