#pragma once

#include <initializer_list>
#include <tuple>

namespace tromelo::testing {

/// The rows of a table-driven test: for (const auto& [what, expected] : Table<const char*,
/// int>{…}).
template <typename... Columns>
using Table = std::initializer_list<std::tuple<Columns...>>;

}  // namespace tromelo::testing
