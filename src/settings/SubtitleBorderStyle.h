#pragma once

namespace tromelo {

/// How subtitles are set off from the picture, in the order in which people are offered it.
enum class SubtitleBorderStyle { outline, shadow, box };

}  // namespace tromelo
