#pragma once

#include <QGuiApplication>

namespace tromelo {

/// Whether the host lets a program put its windows where it likes, and tells where the pointer is
/// on the screen. Wayland does neither: there the host itself moves and resizes.
inline bool canPlaceWindows() {
  return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

}  // namespace tromelo
