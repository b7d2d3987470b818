#include "playback/InfoRows.h"

#include <QCoreApplication>

#include "platform/PlatformWording.h"
#include "playback/PlaybackState.h"

namespace tromelo {

namespace {

QString dropped(const PlaybackState& state) {
  return QCoreApplication::translate("PlayerInfoPanel", "%1 decode · %2 output")
      .arg(state.decoderFrameDrops())
      .arg(state.outputFrameDrops());
}

using State = PlaybackState;

constexpr InfoRow kRows[]{
    {"infoSignal", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Signal"),
     [](const State& state) { return state.dynamicRange().label(); }},
    {"infoOutput", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Output"),
     [](const State& state) { return state.output(); }},
    {"infoHdr", QT_TRANSLATE_NOOP("PlayerInfoPanel", "HDR"),
     [](const State& state) { return state.hdrNote(); }},
    {"infoDisplay", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Display"),
     [](const State& state) { return state.display(); }},
    {"infoPrivate", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Private"),
     [](const State& state) {
       return state.isPrivate()
                  ? QCoreApplication::translate("PlayerInfoPanel", "Nothing is remembered")
                  : QString();
     }},
    {"infoMotion", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Motion"),
     [](const State& state) { return state.motion(); }},
    {"infoChanges", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Changed"),
     [](const State& state) { return state.changes(); }},
    {"infoDivider", "", nullptr},
    {"infoVideo", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Video"),
     [](const State& state) {
       return QString(state.videoSize() + QStringLiteral(" · ") + state.frameRate());
     }},
    {"infoCodec", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Codec"),
     [](const State& state) { return state.codec(); }},
    {"infoDecoder", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Decoder"),
     [](const State& state) { return platformWording(state.decoder()); }},
    {"infoContainer", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Container"),
     [](const State& state) { return state.container(); }},
    {"infoDropped", QT_TRANSLATE_NOOP("PlayerInfoPanel", "Dropped"), dropped},
};

}  // namespace

std::span<const InfoRow> infoRows() { return kRows; }

QString infoLabel(const InfoRow& row) {
  if (!row.value) return {};
  return QCoreApplication::translate("PlayerInfoPanel", row.label);
}

}  // namespace tromelo
