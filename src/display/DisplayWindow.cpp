#include "display/DisplayWindow.h"

#include <utility>

#include "display/EngineToplevel.h"

namespace tromelo {

DisplayWindow::DisplayWindow(Post post, QObject* parent)
    : EngineWindow(parent), post_(std::move(post)) {}

void DisplayWindow::setHostState(const HostState& state) {
  post_([state](EngineToplevel& toplevel) { toplevel.setHostState(state); });
}

void DisplayWindow::setSink(std::shared_ptr<VideoSink> sink) {
  post_([sink = std::move(sink)](EngineToplevel& toplevel) { toplevel.setSink(sink); });
}

void DisplayWindow::setExposed(bool exposed) {
  post_([exposed](EngineToplevel& toplevel) { toplevel.setExposed(exposed); });
}

void DisplayWindow::update(const WindowState& state) {
  const WindowState before = std::exchange(state_, state);
  if (before.title != state.title) Q_EMIT titleChanged();
  if (before.size != state.size) Q_EMIT sizeChanged();
  if (before.visible != state.visible || before.minimized != state.minimized) Q_EMIT stateChanged();
}

void DisplayWindow::takeDown() {
  exists_ = false;
  state_.visible = false;
  state_.minimized = false;
  Q_EMIT stateChanged();
  Q_EMIT takenDown();
}

}  // namespace tromelo
