#pragma once

#include <functional>
#include <memory>

#include "display/EngineWindow.h"
#include "display/VideoSink.h"
#include "display/WindowState.h"

namespace tromelo {

class EngineToplevel;

/// An engine window as the main thread knows it: the newest state that the display's thread has
/// told, and a way back.
class DisplayWindow final : public EngineWindow, public FrameSource {
  Q_OBJECT

 public:
  /// Runs on the display's thread with its side of the window, or not at all once that is gone.
  using Task = std::function<void(EngineToplevel&)>;
  using Post = std::function<void(Task)>;

  DisplayWindow(Post post, QObject* parent);

  bool isVisible() const override { return state_.visible; }
  bool isMinimized() const override { return state_.minimized; }
  bool hasDrawingSurface() const override { return exists_; }
  bool isFullscreen() const override { return state_.fullscreen; }
  QString title() const override { return state_.title; }
  QSize size() const override { return state_.size; }
  void setHostState(const HostState& state) override;

  void setSink(std::shared_ptr<VideoSink> sink) override;
  void setExposed(bool exposed) override;

  void update(const WindowState& state);
  void requestFullscreen(bool fullscreen) { Q_EMIT fullscreenRequested(fullscreen); }
  void takeDown();

 private:
  Post post_;
  WindowState state_;
  bool exists_ = true;
};

}  // namespace tromelo
