#include "settings/RgbaColor.h"

#include <QJsonArray>
#include <QRgba64>
#include <algorithm>
#include <format>

namespace tromelo {

namespace {

double fraction(quint16 component) { return component / 65535.0; }

}  // namespace

RgbaColor::RgbaColor(const QColor& color) {
  if (!color.isValid()) return;
  const QRgba64 rgba = color.rgba64();
  components_ = {fraction(rgba.red()), fraction(rgba.green()), fraction(rgba.blue()),
                 fraction(rgba.alpha())};
}

QColor RgbaColor::toQColor() const {
  const auto [red, green, blue, opacity] = components_;
  return QColor::fromRgbF(float(red), float(green), float(blue), float(opacity));
}

std::optional<RgbaColor> color(const QJsonValue& from) {
  const QJsonArray numbers = from.toArray();
  const auto isNumber = [](const QJsonValue& number) { return number.isDouble(); };
  if (numbers.size() != 4 || !std::ranges::all_of(numbers, isNumber)) return {};
  return RgbaColor(numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(),
                   numbers[3].toDouble());
}

QJsonValue storedColor(const RgbaColor& color) {
  QJsonArray numbers;
  for (const double component : color.components()) numbers.append(component);
  return numbers;
}

std::string mpvColor(const RgbaColor& color) {
  const auto [red, green, blue, opacity] = color.components();
  return std::format("{:.3f}/{:.3f}/{:.3f}/{:.3f}", red, green, blue, opacity);
}

}  // namespace tromelo
