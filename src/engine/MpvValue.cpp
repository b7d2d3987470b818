#include "engine/MpvValue.h"

namespace tromelo {

std::vector<const MpvMap*> MpvValue::list() const {
  std::vector<const MpvMap*> maps;
  const auto* node = as<MpvNode>();
  const auto* elements = node ? node->as<MpvList>() : nullptr;
  if (!elements) return maps;
  maps.reserve(elements->size());
  for (const MpvNode& element : *elements) {
    if (const auto* map = element.as<MpvMap>()) maps.push_back(map);
  }
  return maps;
}

}  // namespace tromelo
