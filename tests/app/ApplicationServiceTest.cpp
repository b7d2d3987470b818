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
  bool isPrivate = false;
  QObject::connect(&first, &ApplicationService::privacyAsked, &first, [&] {
    EXPECT_TRUE(opened.isEmpty()) << "it was played before it was private";
    isPrivate = true;
  });
  ASSERT_EQ(first.start({}), Role::first);
  const QUrl film = fileUrlFromPath("/a (b).mkv");
  // Nothing runs the first one's event loop meanwhile.
  EXPECT_EQ(
      second.start({.file = film, .start = {}, .isPrivate = true}, std::chrono::milliseconds(50)),
      Role::handedOver);
  EXPECT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
  EXPECT_TRUE(isPrivate);
  first.Open({"file:///c(d)", "smb://nas/e"}, {});
  EXPECT_EQ(opened, (QList{film, fileUrlFromPath("/c(d)"), QUrl("smb://nas/e")}));
}

}  // namespace tromelo::testing
