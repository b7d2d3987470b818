#include "settings/PlayerPreferences.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "platform/NumberText.h"

namespace tromelo {

namespace {

// How each type is read; none where something else was stored.

void read(const QJsonValue& stored, std::optional<double>& value) {
  if (stored.isDouble()) value = stored.toDouble();
}
void read(const QJsonValue& stored, std::optional<QString>& value) {
  if (stored.isString()) value = stored.toString();
}
void read(const QJsonValue& stored, std::optional<bool>& value) {
  if (stored.isBool()) value = stored.toBool();
}
void read(const QJsonValue& stored, std::optional<RgbaColor>& value) { value = color(stored); }
void read(const QJsonValue& stored, std::optional<SubtitleBorderStyle>& value) {
  value = borderStyleOf(stored.toString());
}

template <typename T>
QJsonValue written(const T& value) {
  return value;
}
QJsonValue written(const RgbaColor& color) { return storedColor(color); }
QJsonValue written(SubtitleBorderStyle style) { return rawValue(style); }

// How the engine reads each type.

std::string mpvText(const QString& text) { return text.toStdString(); }
std::string mpvText(double number) { return numberText(number); }
std::string mpvText(bool flag) { return flagText(flag); }
std::string mpvText(const RgbaColor& color) { return mpvColor(color); }
std::string receiverFormats(bool passes) { return passes ? "ac3,eac3,dts,dts-hd,truehd" : ""; }
std::string forceOrScale(bool overrides) { return overrides ? "force" : "scale"; }
template <typename T>
std::string noText(const T&) {
  return {};
}

/// A value that depends on the border style. Where none is written the engine keeps what it has.
struct BorderValue {
  const char* text = nullptr;
  bool isOutlineColor = false;  // the person's own, instead of `text`
};
constexpr BorderValue kNotWritten;
constexpr BorderValue kOutlineColor{.isOutlineColor = true};

struct BorderRow {
  const char* property;
  std::array<BorderValue, 3> values;  // outline, shadow, box
};

constexpr std::array kBorderRows{
    BorderRow{"sub-border-style",
              {{{"outline-and-shadow"}, {"outline-and-shadow"}, {"background-box"}}}},
    BorderRow{"sub-outline-size", {{{"2.6"}, {"0.8"}, {"5"}}}},
    BorderRow{"sub-outline-color", {{kOutlineColor, kOutlineColor, kNotWritten}}},
    BorderRow{"sub-shadow-offset", {{{"0"}, {"2.4"}, {"0"}}}},
    BorderRow{"sub-back-color", {{kNotWritten, {"0.0/0.0/0.0/0.8"}, {"0.0/0.0/0.0/0.62"}}}},
};

}  // namespace

double keptAutoHideDelay(double seconds) {
  constexpr double kDay = 86'400;
  return std::isnan(seconds) ? PlayerPreferences().autoHideDelay : std::clamp(seconds, 0.0, kDay);
}

double keptSubtitleSize(double size) {
  constexpr double kEngineLeast = 1;
  constexpr double kEngineMost = 9000;
  return size >= kEngineLeast ? std::min(size, kEngineMost) : PlayerPreferences().subtitleSize;
}

PlayerPreferences preferencesOf(const QJsonObject& stored) {
  PlayerPreferences preferences;
#define TROMELO_READ(type, name, setter, initial, limits, ...)                \
  if (std::optional<type> value; read(stored.value(u"" #name), value), value) \
    preferences.name = limits(*value);
  TROMELO_PREFERENCES(TROMELO_READ)
#undef TROMELO_READ
  return preferences;
}

QJsonObject storedPreferences(const PlayerPreferences& preferences) {
  QJsonObject stored;
#define TROMELO_WRITE(type, name, ...) \
  stored.insert(QStringLiteral(#name), written(preferences.name));
  TROMELO_PREFERENCES(TROMELO_WRITE)
#undef TROMELO_WRITE
  return stored;
}

std::vector<EngineProperty> engineProperties(const PlayerPreferences& preferences) {
  std::vector<EngineProperty> properties;
  const auto add = [&properties](const char* property, std::string value) {
    if (property) properties.push_back({property, std::move(value)});
  };
#define TROMELO_SEND(type, name, setter, initial, limits, signal, part, property, text) \
  add(property, text(preferences.name));
  TROMELO_PREFERENCES(TROMELO_SEND)
#undef TROMELO_SEND
  for (const BorderRow& row : kBorderRows) {
    const BorderValue& value = row.values.at(std::size_t(preferences.subtitleBorderStyle));
    if (value.isOutlineColor) add(row.property, mpvColor(preferences.subtitleOutlineColor));
    if (value.text) add(row.property, value.text);
  }
  return properties;
}

}  // namespace tromelo
