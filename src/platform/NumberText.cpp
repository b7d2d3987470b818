#include "platform/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tromelo {

std::string numberText(double value) {
  std::array<char, 32> buffer;
  const double size = std::abs(value);
  const bool isPlain = size == 0 || (size >= 1e-4 && size < 1e16);
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                    isPlain ? std::chars_format::fixed : std::chars_format::scientific);
  std::string text(buffer.data(), result.ptr);
  if (std::isfinite(value) && text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

std::string flagText(bool value) { return value ? "yes" : "no"; }

}  // namespace tromelo
