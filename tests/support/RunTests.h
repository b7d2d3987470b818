#pragma once

#include <gtest/gtest.h>

#include "support/PrivateHome.h"
#include "support/Warnings.h"

namespace tromelo::testing {

/// The body of a test executable's main(): `Application` is QCoreApplication or one that is made
/// from it. Listing the tests makes no application, so that it works without a display.
template <typename Application>
int runTests(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
  const PrivateHome home;
  watchWarnings();
  const Application application(argc, argv);
  return RUN_ALL_TESTS();
}

}  // namespace tromelo::testing
