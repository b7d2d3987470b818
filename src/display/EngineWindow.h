#pragma once

#include <QObject>
#include <QSize>
#include <QString>
#include <functional>
#include <memory>

#include "display/VideoSinkKind.h"

namespace tromelo {

class EngineToplevel;

/// One window that the engine has put on the private display: the newest state that the display's
/// thread has told, and a way back. Lives on the main thread, owned by PrivateDisplay, and is gone
/// soon after its takenDown(). Sizes are device pixels.
class EngineWindow final : public QObject {
  Q_OBJECT

 public:
  struct State {
    bool visible = false;
    bool minimized = false;
    bool fullscreen = false;
    QString title;
    QSize size;
    friend bool operator==(const State&, const State&) = default;
  };
  /// Runs on the display's thread with its side of the window, or not at all once that is gone.
  using Task = std::function<void(EngineToplevel&)>;
  using Post = std::function<void(Task)>;

  /// `sinkKind` outlives it.
  EngineWindow(Post post, const VideoSinkKind& sinkKind, QObject* parent = nullptr);

  /// From the engine's first commit, before any buffer, until it takes the window down.
  bool isVisible() const { return state_.visible; }
  bool isMinimized() const { return state_.minimized; }
  /// The engine draws its video here: until it has taken the window down.
  bool hasDrawingSurface() const { return exists_; }
  /// What the engine last asked for, or was told since.
  bool isFullscreen() const { return state_.fullscreen; }
  QString title() const { return state_.title; }
  /// The size that the engine chose for itself and last committed; empty before its first buffer.
  QSize size() const { return state_.size; }

  struct HostState {
    QSize size;  // empty: the engine chooses
    bool fullscreen = false;
    bool activated = false;
    bool shown = false;  // false: the engine is told "suspended" and goes on playing
    friend bool operator==(const HostState&, const HostState&) = default;
  };
  /// Tells the engine what its window looks like on the host; returns at once.
  void setHostState(const HostState& state);

  /// What the display has announced its formats for.
  const VideoSinkKind& sinkKind() const { return sinkKind_; }
  /// Where the window's frames go. Replaces the sink before; none takes it away. The newest frame
  /// that no sink has taken is handed over at once.
  void setSink(std::shared_ptr<VideoSink> sink);
  /// Whether what the sink shows can be seen on the host. While it can't, the engine is told
  /// "suspended".
  void setExposed(bool exposed);

  /// What the display's thread has told.
  void update(const State& state);
  void takeDown();

 Q_SIGNALS:
  /// Visibility, minimised or drawing state changed.
  void stateChanged();
  void titleChanged();
  void sizeChanged();
  void fullscreenRequested(bool fullscreen);
  /// No longer visible, for good.
  void takenDown();

 private:
  const Post post_;
  const VideoSinkKind& sinkKind_;
  State state_;
  bool exists_ = true;
};

}  // namespace tromelo
