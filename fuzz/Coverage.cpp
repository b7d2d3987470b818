#include "Coverage.h"

#include <array>
#include <atomic>
#include <bit>
#include <cstdint>

namespace tromelo::fuzz::coverage {

namespace {

constexpr std::size_t kSlots = 1U << 16;

std::array<std::atomic<std::uint8_t>, kSlots> visits;  // of this input, by any thread
std::array<std::uint8_t, kSlots> known;                // a bit for each order of magnitude

std::uint8_t magnitude(std::uint8_t count) {
  return count ? std::uint8_t(1U << (std::bit_width(count) - 1)) : 0;
}

void visit(std::uintptr_t place) {
  auto& count = visits[(place * 0x9e3779b97f4a7c15U) >> 48];
  const auto before = count.load(std::memory_order_relaxed);
  if (before < 255) count.store(std::uint8_t(before + 1), std::memory_order_relaxed);
}

}  // namespace

void begin() {
  for (auto& count : visits) count.store(0, std::memory_order_relaxed);
}

std::size_t takeNew() {
  std::size_t fresh = 0;
  for (std::size_t i = 0; i < kSlots; ++i) {
    const auto bit = magnitude(visits[i].load(std::memory_order_relaxed));
    fresh += (bit & ~known[i]) != 0;
    known[i] |= bit;
  }
  return fresh;
}

std::size_t places() {
  std::size_t all = 0;
  for (const auto bits : known) all += bits != 0;
  return all;
}

}  // namespace tromelo::fuzz::coverage

// The compiler calls it wherever the program may turn off.
extern "C" void __sanitizer_cov_trace_pc() {
  tromelo::fuzz::coverage::visit(reinterpret_cast<std::uintptr_t>(__builtin_return_address(0)));
}
