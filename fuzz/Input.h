#pragma once

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

namespace tromelo::fuzz {

/// What a target is given, taken from its front.
class Input {
 public:
  explicit Input(std::string_view bytes) : rest_(bytes) {}

  bool isEmpty() const { return rest_.empty(); }
  std::string_view rest() const { return rest_; }
  /// Up to `end`, which goes too.
  std::string_view until(std::string_view end) {
    const auto found = rest_.find(end);
    const auto part = rest_.substr(0, found);
    rest_.remove_prefix(found == std::string_view::npos ? rest_.size() : found + end.size());
    return part;
  }
  std::string_view line() { return until("\n"); }
  std::string_view word() { return until(" "); }
  /// The word that comes next; 0 for one that is no number.
  template <typename T = std::int64_t>
  T number() {
    const auto text = word();
    T value{};
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
  }

 private:
  std::string_view rest_;
};

}  // namespace tromelo::fuzz
