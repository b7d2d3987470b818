#include "app/TerminationSignals.h"

#include <gtest/gtest.h>
#include <signal.h>

namespace tromelo::testing {

TEST(TerminationSignalsDeathTest, ASecondSignalEndsTheProgramAtOnceWhicheverItIs) {
  for (const int first : {SIGINT, SIGTERM})
    for (const int second : {SIGINT, SIGTERM})
      EXPECT_EXIT(
          {
            const TerminationSignals signals;
            ::raise(first);
            ::raise(second);
            ::_exit(0);
          },
          ::testing::KilledBySignal(second), "")
          << first << " and " << second;
}

}  // namespace tromelo::testing
