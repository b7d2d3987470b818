#include "platform/HostEnvironment.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "support/Files.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

TEST(HostEnvironment, GivesProcessesWeStartTheHostsDisplayBack) {
  qputenv("WAYLAND_DISPLAY", "host-0");
  HostEnvironment::enterPrivateDisplay("/private/engine-0");
  HostEnvironment::enterPrivateDisplay("/private/engine-1");
  HostEnvironment::set("TROMELO_TEST_ONLY", "ours");
  ASSERT_EQ(qgetenv("WAYLAND_DISPLAY"), "/private/engine-1");

  QTemporaryDir directory;
  const QString said = directory.filePath("said");
  ASSERT_TRUE(HostEnvironment::startDetached(
      "/bin/sh",
      {"-c",
       "printf %s \"$WAYLAND_DISPLAY$TROMELO_TEST_ONLY\" > \"$1.new\" && mv \"$1.new\" \"$1\"",
       "sh", said}));
  ASSERT_TRUE(waitFor([&] { return QFile::exists(said); }));
  EXPECT_EQ(readFile(said), "host-0");
}

}  // namespace tromelo::testing
