#include "platform/SessionBus.h"

#include <gtest/gtest.h>

#include <QLocalServer>
#include <QTemporaryDir>

#include "support/BusDaemon.h"

namespace tromelo::testing {

TEST(SessionBus, IsSilentOnlyWhereItTakesAConnectionAndSaysNothing) {
  using std::chrono::milliseconds;
  const QTemporaryDir folder;
  QLocalServer silent;  // nobody reads what it is told
  ASSERT_TRUE(silent.listen(folder.filePath("bus")));
  const BusDaemon works;
  EXPECT_TRUE(isSilentBus("unix:path=" + silent.fullServerName().toUtf8(), milliseconds(10)));
  EXPECT_FALSE(isSilentBus(works.address().toUtf8(), milliseconds(30000)));
  EXPECT_FALSE(isSilentBus("unix:path=/no/bus", milliseconds(10)));
  EXPECT_FALSE(isSilentBus("disabled:", milliseconds(10)));
}

}  // namespace tromelo::testing
