#pragma once

#include <QByteArray>

namespace tromelo {

/// Differs after an update of the kernel or of a driver that decodes video. Waits for the disk, so
/// it is never for the main thread.
QByteArray driverStamp();

}  // namespace tromelo
