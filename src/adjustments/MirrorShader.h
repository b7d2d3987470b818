#pragma once

#include <string>

namespace tromelo {

/// The path of a shader that the engine mirrors its pictures with, left to right: unlike a filter
/// it needs no pictures that a decoder in hardware would have to hand over. In memory, for as long
/// as the program runs; empty where that can't be had. Any thread.
const std::string& mirrorShader();

}  // namespace tromelo
