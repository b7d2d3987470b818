#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace tromelo {

/// The one place that turns this process's Wayland clients to the private display, and that gives
/// every process we start the host's display back. Main thread only.
class HostEnvironment {
 public:
  /// Points WAYLAND_DISPLAY at `socketPath`. Call it when the application object has connected to
  /// the host and before the engine starts any thread that could read the environment.
  static void enterPrivateDisplay(const QByteArray& socketPath);

  /// The environment as it was before enterPrivateDisplay.
  static QProcessEnvironment processEnvironment();

  /// Starts a program that outlives us, in the host's environment. False when it can't be started.
  static bool startDetached(const QString& program, const QStringList& arguments);
};

}  // namespace tromelo
