#pragma once

#include <QString>

namespace tromelo {

/// A text as people on this platform read it: keys, programs and parts of the system by the names
/// that they have here. Texts are kept and published as they are; only what is shown or printed
/// goes through this.
QString platformWording(QString text);

}  // namespace tromelo
