#pragma once

#include <string>

namespace tromelo {

/// The shortest decimal text that reads back as the same 64-bit float, always with a fraction or an
/// exponent: 1.0 is "1.0", 12.5 is "12.5". Independent of the locale.
std::string numberText(double value);

/// "yes" or "no".
std::string flagText(bool value);

}  // namespace tromelo
