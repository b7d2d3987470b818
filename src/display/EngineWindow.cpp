#include "display/EngineWindow.h"

#include <utility>

#include "display/EngineToplevel.h"

namespace tromelo {

EngineWindow::EngineWindow(Post post, const VideoSinkKind& sinkKind, QObject* parent)
    : QObject(parent), post_(std::move(post)), sinkKind_(sinkKind) {}

void EngineWindow::setHostState(const HostState& state) {
  post_([state](EngineToplevel& toplevel) { toplevel.setHostState(state); });
}

void EngineWindow::setSink(std::shared_ptr<VideoSink> sink) {
  post_([sink = std::move(sink)](EngineToplevel& toplevel) { toplevel.setSink(sink); });
}

void EngineWindow::setExposed(bool exposed) {
  post_([exposed](EngineToplevel& toplevel) { toplevel.setExposed(exposed); });
}

void EngineWindow::update(const State& state) {
  const State before = std::exchange(state_, state);
  if (before.title != state.title) Q_EMIT titleChanged();
  if (before.size != state.size) Q_EMIT sizeChanged();
  if (before.visible != state.visible || before.minimized != state.minimized) Q_EMIT stateChanged();
}

void EngineWindow::takeDown() {
  exists_ = false;
  state_.visible = false;
  state_.minimized = false;
  Q_EMIT stateChanged();
  Q_EMIT takenDown();
}

}  // namespace tromelo
