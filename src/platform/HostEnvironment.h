#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace tromelo {

/// What this process alone needs in its environment, above all the private display's name, and what
/// the host had there, which every process that we start gets back. Main thread only.
class HostEnvironment {
 public:
  /// Sets a variable of this process, while no other thread reads the environment.
  static void set(const char* name, const QByteArray& value);

  /// Turns this process's Wayland clients to the private display: when the application object has
  /// connected to the host, and before the engine starts.
  static void enterPrivateDisplay(const QByteArray& socketPath);

  /// The environment as it would be without set().
  static QProcessEnvironment processEnvironment();

  /// Starts a program that outlives us, in the host's environment. False when it can't be started.
  static bool startDetached(const QString& program, const QStringList& arguments);
};

}  // namespace tromelo
