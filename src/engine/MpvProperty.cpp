#include "engine/MpvProperty.h"

#include <mpv/client.h>

#include <array>

namespace tromelo {

namespace {

static_assert(int(MpvFormat::string) == MPV_FORMAT_STRING);
static_assert(int(MpvFormat::flag) == MPV_FORMAT_FLAG);
static_assert(int(MpvFormat::int64) == MPV_FORMAT_INT64);
static_assert(int(MpvFormat::number) == MPV_FORMAT_DOUBLE);
static_assert(int(MpvFormat::node) == MPV_FORMAT_NODE);

#define TROMELO_PROPERTY(name, ...) MpvProperty::name,
constexpr std::array kAll{TROMELO_MPV_PROPERTIES(TROMELO_PROPERTY)};

struct Row {
  const char* name;
  MpvFormat format;
};
#define TROMELO_ROW(name, engineName, format, ...) Row{engineName, MpvFormat::format},
constexpr std::array kRows{TROMELO_MPV_PROPERTIES(TROMELO_ROW)};

const Row& row(MpvProperty property) { return kRows.at(std::size_t(property) - 1); }

}  // namespace

std::span<const MpvProperty> allMpvProperties() { return kAll; }

const char* mpvPropertyName(MpvProperty property) { return row(property).name; }

MpvFormat mpvPropertyFormat(MpvProperty property) { return row(property).format; }

bool changesWithFrames(MpvProperty property) {
  return property == MpvProperty::timePos || property == MpvProperty::estimatedFps ||
         property == MpvProperty::decoderDrops || property == MpvProperty::outputDrops;
}

std::optional<MpvProperty> mpvProperty(std::uint64_t rawValue) {
  if (rawValue < 1 || rawValue > kAll.size()) return {};
  return kAll[rawValue - 1];
}

}  // namespace tromelo
