#pragma once

#include <QtTypes>

namespace tromelo::testing {

/// What a running process holds of the system.
struct ProcessUse {
  qint64 memory = 0;  // resident, kB
  int descriptors = 0;
  int threads = 0;

  static ProcessUse of(qint64 processId);
};

}  // namespace tromelo::testing
