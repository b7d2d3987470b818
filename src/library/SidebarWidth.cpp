#include "library/SidebarWidth.h"

#include <algorithm>
#include <cmath>

namespace tromelo {

namespace {

constexpr double kIdeal = 230;
const QString kKey = QStringLiteral("librarySidebarWidth");

double possible(double points) {
  return std::round(std::clamp(points, SidebarWidth::least(), SidebarWidth::most()));
}

}  // namespace

SidebarWidth::SidebarWidth(UserDefaults& defaults, QObject* parent)
    : QObject(parent),
      defaults_(defaults),
      width_(possible(defaults.value(kKey).toDouble(kIdeal))) {}

void SidebarWidth::setWidth(double points) {
  const double width = possible(points);
  if (width == width_) return;
  width_ = width;
  defaults_.set(kKey, width_);
  Q_EMIT widthChanged();
}

void SidebarWidth::reset() { setWidth(kIdeal); }

}  // namespace tromelo
