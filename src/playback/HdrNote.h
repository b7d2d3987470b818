#pragma once

#include <QString>

#include "platform/PictureWay.h"
#include "platform/ScreenHeadroom.h"
#include "playback/DynamicRange.h"
#include "playback/FileFacts.h"

namespace tromelo {

/// Why the film that plays, which is HDR, isn't shown as that: a few words for a person. Empty
/// where it is, or where there is nothing to explain.
QString hdrNote(const FileFacts& facts, const DynamicRange& range, const PictureWay& way,
                const ScreenHeadroom& screen);

}  // namespace tromelo
