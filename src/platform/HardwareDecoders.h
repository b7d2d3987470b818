#pragma once

#include <QString>

namespace tromelo {

/// Whether this machine may decode video with anything but its processor: whether it has a device
/// that some decoder is reached by. True doesn't say that one works.
bool mayDecodeInHardware(const QString& devices = QStringLiteral("/dev"));

}  // namespace tromelo
