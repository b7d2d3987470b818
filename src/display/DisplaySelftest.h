#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <string>

#include "display/SceneDrawing.h"

namespace tromelo {

/// The engine, for a selftest: plays something with video on the private display.
struct SelftestEngine {
  /// `vulkanDevice` is the UUID of the one to draw with; empty: as the engine likes.
  std::function<void(const QByteArray& socketPath, const std::string& vulkanDevice)> start;
  std::function<QString()> hardwareDecoder;  // the one in use; empty: none
  std::function<void()> stop;                // returns when the engine is gone
};

/// What a report from the field needs to say of the way that pictures take on this machine, one
/// "name: value" a line. Starts a private display, asks it as the engine would, and, where there is
/// an engine, waits a few seconds for its first frame. Main thread, after the application object;
/// runs the event loop.
QString displaySelftest(const SceneDrawing& drawing, const SelftestEngine& engine = {});

}  // namespace tromelo
