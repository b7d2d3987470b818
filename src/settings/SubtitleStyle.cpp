#include "settings/SubtitleStyle.h"

#include <array>

#include "platform/NumberText.h"

namespace tromelo {

namespace {

using Style = const SubtitleStyle&;

/// A fixed text, one that is made of the style, or nothing: the engine keeps what it has.
struct Value {
  const char* fixed = nullptr;
  std::string (*of)(Style) = nullptr;
};

constexpr Value kNotWritten;
constexpr Value fixed(const char* text) { return {.fixed = text}; }
constexpr Value of(std::string (*made)(Style)) { return {.of = made}; }

struct PropertyRow {
  const char* property;
  std::array<Value, 3> values;  // by border style

  constexpr PropertyRow(const char* name, Value ofAll) : PropertyRow(name, ofAll, ofAll, ofAll) {}
  constexpr PropertyRow(const char* name, Value outline, Value shadow, Value box)
      : property(name), values{outline, shadow, box} {}
};

constexpr Value kOfOutlineColor = of([](Style s) { return mpvColor(s.outlineColor); });

constexpr std::array kPropertyRows{
    PropertyRow{"sub-font", of([](Style s) { return s.font.toStdString(); })},
    PropertyRow{"sub-font-size", of([](Style s) { return numberText(s.size); })},
    PropertyRow{"sub-color", of([](Style s) { return mpvColor(s.color); })},
    PropertyRow{"sub-bold", of([](Style s) { return flagText(s.bold); })},
    PropertyRow{"sub-ass-override",
                of([](Style s) { return std::string(s.overridesStyled ? "force" : "scale"); })},
    PropertyRow{"sub-border-style", fixed("outline-and-shadow"), fixed("outline-and-shadow"),
                fixed("background-box")},
    PropertyRow{"sub-outline-size", fixed("2.6"), fixed("0.8"), fixed("5")},
    PropertyRow{"sub-outline-color", kOfOutlineColor, kOfOutlineColor, kNotWritten},
    PropertyRow{"sub-shadow-offset", fixed("0"), fixed("2.4"), fixed("0")},
    PropertyRow{"sub-back-color", kNotWritten, fixed("0.0/0.0/0.0/0.8"), fixed("0.0/0.0/0.0/0.62")},
};

}  // namespace

std::vector<EngineProperty> engineProperties(const SubtitleStyle& style) {
  std::vector<EngineProperty> properties;
  for (const PropertyRow& row : kPropertyRows) {
    const Value& value = row.values.at(static_cast<std::size_t>(style.borderStyle));
    if (value.fixed) properties.push_back({row.property, value.fixed});
    if (value.of) properties.push_back({row.property, value.of(style)});
  }
  return properties;
}

}  // namespace tromelo
