#pragma once

#include <mpv/client.h>

#include <optional>

#include "engine/MpvValue.h"

namespace tromelo {

/// A copy of libmpv's tree. None where a node has no value for us; such elements and entries are
/// left out of the lists and maps around them.
std::optional<MpvNode> mpvNode(const mpv_node& node);

/// The value of a property change.
MpvValue mpvValue(const mpv_event_property& change);

}  // namespace tromelo
