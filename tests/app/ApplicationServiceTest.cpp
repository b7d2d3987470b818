#include "app/ApplicationService.h"

#include <gtest/gtest.h>

#include "platform/FilePath.h"
#include "support/BusDaemon.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

TEST(ApplicationServiceTest, WhatABusyProgramTakesLateIsPlayedOnce) {
  using Role = ApplicationService::Role;
  BusDaemon bus;
  ApplicationService first(bus.connect("first"));
  ApplicationService second(bus.connect("second"));
  QList<QUrl> opened;
  QObject::connect(&first, &ApplicationService::filesOpened, &first,
                   [&opened](const QList<QUrl>& files) { opened += files; });
  ASSERT_EQ(first.start({}), Role::first);
  const QUrl film = fileUrlFromPath("/a (b).mkv");
  // Nothing runs the first one's event loop meanwhile.
  EXPECT_EQ(second.start({.file = film, .start = {}}, std::chrono::milliseconds(50)),
            Role::handedOver);
  EXPECT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
  first.Open({"file:///c(d)", "smb://nas/e"}, {});
  EXPECT_EQ(opened, (QList{film, fileUrlFromPath("/c(d)"), QUrl("smb://nas/e")}));
}

}  // namespace tromelo::testing
