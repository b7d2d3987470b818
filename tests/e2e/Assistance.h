#pragma once

#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <vector>

#include "RunningPlayer.h"
#include "support/BusDaemon.h"

namespace tromelo::testing {

/// What assistive technology knows of an object on the screen.
struct SeenObject {
  QString window;  // its title
  QString within;  // the names of all that it lies in, the program's first
  QString role;    // as AT-SPI names it
  QString name;
  QString description;
  QStringList states;
  QRect place;  // on the screen
  QString value;
  QStringList actions;

  bool is(const char* state) const { return states.contains(QLatin1StringView(state)); }
};

/// A person's assistive technology, on a session bus of its own.
class Assistance {
 public:
  /// Makes `player`, which isn't started yet and outlives it, speak to it.
  explicit Assistance(RunningPlayer& player);
  ~Assistance();

  /// Everything that the program says is on the screen; nothing at first, while it gets to know us.
  std::vector<SeenObject> see();
  /// Waits for an object with this role and name that has all these states. Without one the test
  /// fails, and the default is given.
  SeenObject find(const char* role, const char* name, const QStringList& states = {});
  /// As a click; waits for the object first.
  bool press(const char* role, const char* name);
  bool set(const char* role, const char* name, double value);

  /// From now on.
  void listen();
  [[nodiscard]] bool hears(const char* announcement);

 private:
  QString ask(const QStringList& question);

  RunningPlayer& player_;
  BusDaemon bus_;
  QProcess listener_;
  QByteArray heard_;
};

}  // namespace tromelo::testing
