#pragma once

#include <QString>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tromelo {

struct MpvNode;
using MpvList = std::vector<MpvNode>;
using MpvMap = std::map<std::string, MpvNode, std::less<>>;

/// A tree of values that the engine reported; ours, free of the engine's memory. Text is bytes, as
/// file names need not be UTF-8.
struct MpvNode {
  std::variant<std::string, bool, std::int64_t, double, MpvList, MpvMap> value;

  template <typename T>
  const T* as() const {
    return std::get_if<T>(&value);
  }
  friend bool operator==(const MpvNode&, const MpvNode&) = default;
};

/// The value under `key` where it is a T; else null.
template <typename T>
const T* mpvEntry(const MpvMap& map, std::string_view key) {
  const auto found = map.find(key);
  return found == map.end() ? nullptr : found->second.template as<T>();
}

/// The text under `key`; none where there is none or it is of another kind. Undecodable bytes show
/// as U+FFFD.
inline std::optional<QString> nodeText(const MpvMap& map, std::string_view key) {
  const auto* bytes = mpvEntry<std::string>(map, key);
  return bytes ? std::optional(QString::fromUtf8(*bytes)) : std::nullopt;
}

/// What a property change carries.
class MpvValue {
 public:
  /// The property is unavailable or has no value.
  using None = std::monostate;

  MpvValue() = default;
  // NOLINTNEXTLINE(google-explicit-constructor): a value of each kind reads as one
  template <typename T>
    requires(!std::same_as<std::remove_cvref_t<T>, MpvValue>)
  MpvValue(T&& value) : value_(std::forward<T>(value)) {}

  bool isNone() const { return as<None>() != nullptr; }

  /// bool, std::int64_t, double, std::string or MpvNode; null when it is of another kind.
  template <typename T>
  const T* as() const {
    return std::get_if<T>(&value_);
  }

  /// The maps of a node that is a list, in order, without its other elements; else empty. They live
  /// as long as this value.
  std::vector<const MpvMap*> list() const;

  friend bool operator==(const MpvValue&, const MpvValue&) = default;

 private:
  std::variant<None, bool, std::int64_t, double, std::string, MpvNode> value_;
};

}  // namespace tromelo
