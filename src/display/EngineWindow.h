#pragma once

#include <QObject>
#include <QSize>
#include <QString>

namespace tromelo {

/// One window that the engine has put on the private display. Lives on the main thread, owned by
/// PrivateDisplay, and is gone soon after its takenDown(). Sizes are device pixels.
class EngineWindow : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// From the engine's first commit, before any buffer, until it takes the window down.
  virtual bool isVisible() const = 0;
  virtual bool isMinimized() const = 0;
  /// The engine draws its video here, as opposed to a helper's window without a surface to draw on.
  virtual bool hasDrawingSurface() const = 0;
  /// What the engine last asked for, or was told since.
  virtual bool isFullscreen() const = 0;
  virtual QString title() const = 0;
  /// The size that the engine chose for itself and last committed; empty before its first buffer.
  virtual QSize size() const = 0;

  struct HostState {
    QSize size;  // empty: the engine chooses
    bool fullscreen = false;
    bool activated = false;
    bool shown = false;  // false: the engine is told "suspended" and goes on playing
    friend bool operator==(const HostState&, const HostState&) = default;
  };
  /// Tells the engine what its window looks like on the host; returns at once.
  virtual void setHostState(const HostState& state) = 0;

 Q_SIGNALS:
  /// Visibility, minimised or drawing state changed.
  void stateChanged();
  void titleChanged();
  void sizeChanged();
  void fullscreenRequested(bool fullscreen);
  /// No longer visible, for good.
  void takenDown();
};

}  // namespace tromelo
