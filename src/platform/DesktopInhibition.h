#pragma once

#include <QDBusConnection>

#include "platform/IdleInhibitor.h"

namespace tromelo {

/// Ways over the session bus. The service ends an inhibition by itself when our connection ends, be
/// it by a crash.

/// The desktop's portal: neither the screen nor the system goes to sleep.
AskForInhibition portalInhibition(const QDBusConnection& bus);

/// The older screen saver service.
AskForInhibition screenSaverInhibition(const QDBusConnection& bus);

}  // namespace tromelo
