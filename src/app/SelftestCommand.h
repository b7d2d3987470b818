#pragma once

#include <QString>

namespace tromelo {

/// The text of --display-selftest: the display's own report, with the real engine playing a
/// generated picture. Needs the application object; runs the event loop for a few seconds.
QString runDisplaySelftest();

}  // namespace tromelo
