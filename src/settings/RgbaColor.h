#pragma once

#include <QColor>
#include <QJsonValue>
#include <QMetaType>
#include <array>
#include <optional>
#include <string>

namespace tromelo {

/// A colour in the sRGB space, with exactly the components that were stored. Opaque white by
/// default.
class RgbaColor {
  Q_GADGET
  Q_PROPERTY(QColor color READ toQColor CONSTANT)

 public:
  using Components = std::array<double, 4>;  // red, green, blue, opacity; each from 0 to 1

  constexpr RgbaColor() = default;
  /// Components below 0 count as 0, those above 1 as 1.
  constexpr RgbaColor(double red, double green, double blue, double opacity = 1)
      : components_{kept(red), kept(green), kept(blue), kept(opacity)} {}
  /// From a colour in any colour space; an invalid one gives white.
  Q_INVOKABLE RgbaColor(const QColor& color);  // NOLINT(google-explicit-constructor)

  constexpr const Components& components() const { return components_; }
  QColor toQColor() const;

  friend bool operator==(const RgbaColor&, const RgbaColor&) = default;

 private:
  /// NaN becomes 0.
  static constexpr double kept(double value) { return value > 0 ? (value < 1 ? value : 1) : 0; }

  Components components_{1, 1, 1, 1};
};

/// None unless the stored value is a list of exactly four numbers.
std::optional<RgbaColor> color(const QJsonValue& from);

/// The value to store.
QJsonValue storedColor(const RgbaColor& color);

/// As the engine reads it: "1.000/0.930/0.350/1.000".
std::string mpvColor(const RgbaColor& color);

}  // namespace tromelo
