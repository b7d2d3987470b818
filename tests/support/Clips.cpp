#include "support/Clips.h"

namespace tromelo::testing {

std::string clipPath(const std::string& name) { return TROMELO_CLIP_DIR "/" + name; }

}  // namespace tromelo::testing
