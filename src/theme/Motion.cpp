#include "theme/Motion.h"

#include <utility>

namespace tromelo {

Motion& Motion::of(QQmlEngine& engine) {
  auto* motion = engine.findChild<Motion*>(Qt::FindDirectChildrenOnly);
  return motion ? *motion : *new Motion(engine);
}

void Motion::setWanted(bool isWanted) {
  if (std::exchange(isWanted_, isWanted) != isWanted) Q_EMIT isWantedChanged();
}

}  // namespace tromelo
