#pragma once

#include <string>

namespace tromelo::testing {

/// The absolute path of a clip that scripts/make-clips generates ("sample.mp4"). Tests that use it
/// say CLIPS in tromelo_test().
inline std::string clipPath(const std::string& name) { return TROMELO_CLIP_DIR "/" + name; }

}  // namespace tromelo::testing
