#include "adjustments/Adjustment.h"

#include <QtGlobal>
#include <algorithm>
#include <cmath>

#include "adjustments/MirrorShader.h"

namespace tromelo {

namespace {

using Kind = AdjustmentRow::Kind;
using Writes = std::vector<MpvPropertyWrite>;
using enum AdjustmentGroup;

constexpr const char* kOn = QT_TRANSLATE_NOOP("Adjustment", "On");
constexpr const char* kOff = QT_TRANSLATE_NOOP("Adjustment", "Off");
constexpr const char* kAutomatic = QT_TRANSLATE_NOOP("Adjustment", "Automatic");
constexpr const char* kAsMade = QT_TRANSLATE_NOOP("Adjustment", "As made");

Writes aspect(const std::string& value) {
  // Where the picture's shape is left alone, filling cuts off what doesn't fit.
  if (value == "fill") return {{"video-aspect-override", "-2"}, {"panscan", "1"}};
  return {{"video-aspect-override", value == "made" ? "-2" : value}, {"panscan", "0"}};
}
Writes mirror(const std::string& value) {
  return {{"glsl-shaders", value == "on" ? mirrorShader() : std::string()}};
}
Writes deinterlacing(const std::string& value) {
  return {{"deinterlace", value == "off" ? "no" : value == "on" ? "yes" : "auto"}};
}
Writes nightMode(const std::string& value) {
  // Quiet passages come up by some 10 dB; what is loud stays below full scale.
  constexpr const char* kFilter =
      "lavfi=[acompressor=threshold=0.03:ratio=3:knee=4:attack=20:release=500:makeup=3,"
      "alimiter=limit=0.9:level=0]";
  return {{"af", value == "on" ? kFilter : ""}};
}
Writes downmix(const std::string& value) {
  return {{"audio-channels", value == "on" ? "stereo" : "auto-safe"}};
}
Writes subtitlesWithoutNotes(const std::string& value) {
  return {{"sub-filter-sdh", value == "on" ? "yes" : "no"}};
}
Writes subtitleBrightness(const std::string& value) {
  // ITU-R BT.2408: plain white in an HDR picture, in cd/m².
  constexpr double kWhite = 203;
  return {{"sub-hdr-peak", std::to_string(std::lround(kWhite * std::stod(value) / 100))}};
}

QString percent(double number) { return QStringLiteral("%1%").arg(std::lround(number)); }
QString signedNumber(double number) {
  const long rounded = std::lround(number);
  return (rounded > 0 ? QStringLiteral("+%1") : QStringLiteral("%1")).arg(rounded);
}
QString zoomText(double number) { return percent(std::exp2(number) * 100); }
QString moveText(double number) { return signedNumber(number * 100) + u'%'; }
QString scaleText(double number) { return percent(number * 100); }

std::vector<AdjustmentChoice> onOff() { return {{"off", kOff}, {"on", kOn}}; }

constexpr AdjustmentRange kColors{.least = -100, .most = 100, .step = 5, .asMade = 0};
constexpr AdjustmentRange kMoves{.least = -1, .most = 1, .step = 0.02, .asMade = 0};

std::vector<AdjustmentRow> shapeRows() {
  return {
      {.adjustment = Adjustment::aspect,
       .group = picture,
       .key = "aspect",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Aspect"),
       .choices = {{"made", kAsMade},
                   {"4:3", "4:3"},
                   {"16:9", "16:9"},
                   {"1.85", "1.85:1"},
                   {"2.39", "2.39:1"},
                   {"fill", QT_TRANSLATE_NOOP("Adjustment", "Fills the window")}},
       .tell = aspect},
      {.adjustment = Adjustment::zoom,
       .group = picture,
       .key = "zoom",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Zoom"),
       .kind = Kind::number,
       .range = {.least = -1, .most = 3, .step = 0.05, .asMade = 0},
       .text = zoomText,
       .option = "video-zoom"},
      {.adjustment = Adjustment::moveAcross,
       .group = picture,
       .key = "moveAcross",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Move left / right"),
       .kind = Kind::number,
       .range = kMoves,
       .text = moveText,
       .option = "video-pan-x",
       .suitsAll = false},
      {.adjustment = Adjustment::moveDown,
       .group = picture,
       .key = "moveDown",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Move up / down"),
       .kind = Kind::number,
       .range = kMoves,
       .text = moveText,
       .option = "video-pan-y",
       .suitsAll = false},
      {.adjustment = Adjustment::rotation,
       .group = picture,
       .key = "rotation",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Turned"),
       .choices = {{"0", kAsMade}, {"90", "90°"}, {"180", "180°"}, {"270", "270°"}},
       .option = "video-rotate",
       .suitsAll = false},
      {.adjustment = Adjustment::mirror,
       .group = picture,
       .key = "mirror",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Mirrored"),
       .choices = onOff(),
       .tell = mirror,
       .suitsAll = false},
  };
}

std::vector<AdjustmentRow> motionRows() {
  return {
      {.adjustment = Adjustment::crop,
       .group = picture,
       .key = "crop",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Black bars cut off"),
       .kind = Kind::crop,
       .option = "video-crop",
       .suitsAll = false},
      {.adjustment = Adjustment::deinterlacing,
       .group = picture,
       .key = "deinterlacing",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Deinterlacing"),
       .choices = {{"auto", kAutomatic}, {"on", kOn}, {"off", kOff}},
       .tell = deinterlacing},
      {.adjustment = Adjustment::smoothMotion,
       .group = picture,
       .key = "smoothMotion",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Smooth motion"),
       .choices = onOff()},
  };
}

std::vector<AdjustmentRow> colorRows() {
  return {
      {.adjustment = Adjustment::brightness,
       .group = picture,
       .key = "brightness",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Brightness"),
       .kind = Kind::number,
       .range = kColors,
       .text = signedNumber,
       .option = "brightness"},
      {.adjustment = Adjustment::contrast,
       .group = picture,
       .key = "contrast",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Contrast"),
       .kind = Kind::number,
       .range = kColors,
       .text = signedNumber,
       .option = "contrast"},
      {.adjustment = Adjustment::saturation,
       .group = picture,
       .key = "saturation",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Saturation"),
       .kind = Kind::number,
       .range = kColors,
       .text = signedNumber,
       .option = "saturation"},
      {.adjustment = Adjustment::gamma,
       .group = picture,
       .key = "gamma",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Gamma"),
       .kind = Kind::number,
       .range = kColors,
       .text = signedNumber,
       .option = "gamma"},
      {.adjustment = Adjustment::toneMapping,
       .group = picture,
       .key = "toneMapping",
       .name = QT_TRANSLATE_NOOP("Adjustment", "HDR on this screen"),
       .choices = {{"auto", kAutomatic},
                   {"mobius", QT_TRANSLATE_NOOP("Adjustment", "Faithful")},
                   {"bt.2446a", QT_TRANSLATE_NOOP("Adjustment", "Bright")},
                   {"hable", QT_TRANSLATE_NOOP("Adjustment", "Soft highlights")}},
       .option = "tone-mapping"},
  };
}

std::vector<AdjustmentRow> soundRows() {
  return {
      {.adjustment = Adjustment::nightMode,
       .group = sound,
       .key = "nightMode",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Night mode"),
       .choices = onOff(),
       .tell = nightMode},
      {.adjustment = Adjustment::downmix,
       .group = sound,
       .key = "downmix",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Mixed down to stereo"),
       .choices = onOff(),
       .tell = downmix},
  };
}

std::vector<AdjustmentRow> subtitleRows() {
  return {
      {.adjustment = Adjustment::secondSubtitle,
       .group = subtitles,
       .key = "secondSubtitle",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Second subtitles"),
       .kind = Kind::track,
       .suitsAll = false},
      {.adjustment = Adjustment::subtitleScale,
       .group = subtitles,
       .key = "subtitleScale",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Size of subtitles"),
       .kind = Kind::number,
       .range = {.least = 0.25, .most = 4, .step = 0.05, .asMade = 1},
       .text = scaleText,
       .option = "sub-scale"},
      {.adjustment = Adjustment::subtitlePosition,
       .group = subtitles,
       .key = "subtitlePosition",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Place of subtitles"),
       .kind = Kind::number,
       .range = {.least = 0, .most = 110, .step = 1, .asMade = 100},
       .text = percent},
      {.adjustment = Adjustment::subtitlesWithoutNotes,
       .group = subtitles,
       .key = "subtitlesWithoutNotes",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Without notes on sounds"),
       .choices = onOff(),
       .tell = subtitlesWithoutNotes},
      {.adjustment = Adjustment::subtitleBrightness,
       .group = subtitles,
       .key = "subtitleBrightness",
       .name = QT_TRANSLATE_NOOP("Adjustment", "Brightness on HDR"),
       .kind = Kind::number,
       .range = {.least = 10, .most = 200, .step = 10, .asMade = 100},
       .text = percent,
       .tell = subtitleBrightness,
       .needs = "sub-hdr-peak"},
  };
}

const std::vector<AdjustmentRow>& table() {
  static const std::vector<AdjustmentRow> rows = [] {
    std::vector<AdjustmentRow> all;
    for (const auto rows : {&shapeRows, &motionRows, &colorRows, &soundRows, &subtitleRows})
      std::ranges::move(rows(), std::back_inserter(all));
    return all;
  }();
  return rows;
}

}  // namespace

std::span<const AdjustmentRow> adjustmentRows() { return table(); }

const AdjustmentRow& adjustmentRow(Adjustment adjustment) {
  return *std::ranges::find(table(), adjustment, &AdjustmentRow::adjustment);
}

const AdjustmentRow* adjustmentRow(const std::string& key) {
  const auto found = std::ranges::find(table(), key, &AdjustmentRow::key);
  return found == table().end() ? nullptr : &*found;
}

}  // namespace tromelo
