#pragma once

#include <QDBusConnection>
#include <optional>

namespace tromelo {

/// The session bus, where there is one; never starts one.
std::optional<QDBusConnection> sessionBus();

}  // namespace tromelo
