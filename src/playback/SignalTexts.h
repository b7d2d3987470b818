#pragma once

#include <QString>
#include <optional>

#include "platform/ScreenHeadroom.h"
#include "playback/DynamicRange.h"
#include "playback/FileFacts.h"

namespace tromelo {

// What the player says about the way from the file's signal to the screen. Independent of the
// locale.

/// What the engine sends to the screen, "HDR · PQ · BT.2020 (EDR)"; none until it has said so.
std::optional<QString> outputText(const FileFacts& facts, const DynamicRange& range);

/// What the screen can show: "EDR · 16.0× headroom (now 4.3×)" or "SDR display".
QString displayText(const ScreenHeadroom& screen);

}  // namespace tromelo
