#include "engine/MpvConversion.h"

#include <span>

namespace tromelo {

namespace {

std::span<mpv_node> elements(const mpv_node_list* list) {
  if (!list || !list->values || list->num <= 0) return {};
  return {list->values, static_cast<std::size_t>(list->num)};
}

MpvList mpvList(const mpv_node_list* list) {
  MpvList result;
  result.reserve(elements(list).size());
  for (const mpv_node& element : elements(list)) {
    if (auto node = mpvNode(element)) result.push_back(std::move(*node));
  }
  return result;
}

MpvMap mpvMap(const mpv_node_list* list) {
  MpvMap result;
  if (!list || !list->keys) return result;
  const auto values = elements(list);
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!list->keys[i]) continue;
    if (auto node = mpvNode(values[i])) result.insert_or_assign(list->keys[i], std::move(*node));
  }
  return result;
}

}  // namespace

std::optional<MpvNode> mpvNode(const mpv_node& node) {
  switch (node.format) {
    case MPV_FORMAT_STRING:
      if (!node.u.string) return {};
      return std::make_optional<MpvNode>(std::string(node.u.string));
    case MPV_FORMAT_FLAG:
      return std::make_optional<MpvNode>(node.u.flag != 0);
    case MPV_FORMAT_INT64:
      return std::make_optional<MpvNode>(node.u.int64);
    case MPV_FORMAT_DOUBLE:
      return std::make_optional<MpvNode>(node.u.double_);
    case MPV_FORMAT_NODE_ARRAY:
      return std::make_optional<MpvNode>(mpvList(node.u.list));
    case MPV_FORMAT_NODE_MAP:
      return std::make_optional<MpvNode>(mpvMap(node.u.list));
    default:
      return {};
  }
}

MpvValue mpvValue(const mpv_event_property& change) {
  if (!change.data) return {};
  switch (change.format) {
    case MPV_FORMAT_STRING: {
      const char* text = *static_cast<char**>(change.data);
      return text ? MpvValue(std::string(text)) : MpvValue();
    }
    case MPV_FORMAT_FLAG:
      return *static_cast<int*>(change.data) != 0;
    case MPV_FORMAT_INT64:
      return *static_cast<std::int64_t*>(change.data);
    case MPV_FORMAT_DOUBLE:
      return *static_cast<double*>(change.data);
    case MPV_FORMAT_NODE: {
      auto node = mpvNode(*static_cast<mpv_node*>(change.data));
      return node ? MpvValue(std::move(*node)) : MpvValue();
    }
    default:
      return {};
  }
}

}  // namespace tromelo
