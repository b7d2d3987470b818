#pragma once

#include <QTemporaryDir>

namespace tromelo::testing {

/// Turns every XDG base directory of the process but the runtime one to an empty temporary
/// directory, so that no test reads or writes what belongs to the person who runs it.
class PrivateHome {
 public:
  PrivateHome();

 private:
  QTemporaryDir directory_;
};

}  // namespace tromelo::testing
