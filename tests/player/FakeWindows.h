#pragma once

#include "platform/Clock.h"
#include "player/VideoWindow.h"

namespace tromelo::testing {

/// Fades on a driven clock. `Base` is ControlledWindow or VideoWindow.
template <typename Base>
struct FakeWindow : Base {
  explicit FakeWindow(Clock& clock) : clock_(clock) {}

  bool isVisible() const override { return visible; }
  void setOpacity(double value) override {
    fade_.reset();
    opacity = value;
  }
  void fadeTo(double value, std::chrono::milliseconds duration, QEasingCurve::Type,
              std::function<void()> completed) override {
    ++fades;
    fade_ = clock_.after(duration, [this, value, completed] {
      opacity = value;
      if (completed) completed();
    });
  }
  void makeKeyAndOrderFront() override {
    ordered = true;
    visible = true;
  }
  void orderOut() override { ordered = false; }

  bool visible = false;
  bool ordered = false;
  double opacity = 1;
  int fades = 0;

 private:
  Clock& clock_;
  std::unique_ptr<Clock::Timer> fade_;
};

struct FakeLibraryWindow final : FakeWindow<ControlledWindow> {
  using FakeWindow::FakeWindow;
  void orderOut() override { visible = ordered = false; }
};

struct FakeOverlay final : PlayerOverlay {
  /// Empties `self` when it goes.
  explicit FakeOverlay(FakeOverlay*& self) : self_(self) {}
  ~FakeOverlay() override { self_ = nullptr; }

  bool isMouseInsideChrome() const override { return mouseInside; }
  void setChromeVisible(bool visible, bool animated) override {
    chromeVisible = visible;
    wasAnimated = animated;
  }
  double height() const override { return size; }
  double controlsTop() const override { return top; }

  bool mouseInside = false;
  bool chromeVisible = true;
  bool wasAnimated = false;
  double size = 0;
  double top = 0;

 private:
  FakeOverlay*& self_;
};

struct FakeVideoWindow final : FakeWindow<VideoWindow> {
  explicit FakeVideoWindow(Clock& clock) : FakeWindow(clock) { visible = true; }

  bool isMinimized() const override { return minimized; }
  bool isFullscreen() const override { return fullscreen; }
  bool hasDrawingSurface() const override { return drawingSurface; }
  void dress(QSize size) override {
    ++dressed;
    minimumSize = size;
  }
  bool isKey() const override { return key; }
  std::optional<ScreenHeadroom> screenHeadroom() const override { return headroom; }
  std::unique_ptr<PlayerOverlay> installOverlay(PlaybackModel&, PlayerWindowController&) override {
    auto made = std::make_unique<FakeOverlay>(overlay);
    overlay = made.get();
    return made;
  }
  void setKeyMonitor(KeyMonitor monitor) override { keyMonitor = std::move(monitor); }
  void showPictureIn(QSize pixels) override { pictureSize = pixels; }
  void fitScreen() override {}
  void setMini(bool mini) override { isMini = mini; }
  void setStaysOnTop(bool stays) override { staysOnTop = stays; }
  void hidePointer() override { pointerShown = false; }
  void showPointer() override { pointerShown = true; }

  bool minimized = false;
  bool fullscreen = false;
  bool drawingSurface = true;
  int dressed = 0;
  QSize minimumSize;
  bool key = true;
  bool pointerShown = true;
  bool isMini = false;
  bool staysOnTop = false;
  QSize pictureSize;
  std::optional<ScreenHeadroom> headroom = ScreenHeadroom();
  FakeOverlay* overlay = nullptr;
  KeyMonitor keyMonitor;
};

struct FakeWindowSystem final : WindowSystem {
  QList<VideoWindow*> videoWindows() const override { return windows; }
  void add(VideoWindow& window) {
    windows.append(&window);
    Q_EMIT windowsChanged();
  }

  QList<VideoWindow*> windows;
};

}  // namespace tromelo::testing
