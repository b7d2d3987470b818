#pragma once

#include <cstddef>

namespace tromelo::fuzz {

/// Where our code has been, which the compiler has told of in builds with TROMELO_FUZZ; in others
/// it is nowhere.
namespace coverage {

/// An input begins.
void begin();
/// Places, and numbers of visits to them, that no input before this one has come to.
std::size_t takeNew();
/// Of all inputs so far.
std::size_t places();

}  // namespace coverage

}  // namespace tromelo::fuzz
