#include "app/LaunchFile.h"

#include <gtest/gtest.h>

#include <future>

#include "support/WaitFor.h"

namespace tromelo::testing {

TEST(LaunchFile, IsOpenedWhenItsShareSaysThatItIsThereUnlessAnotherOneWas) {
  for (const bool isDropped : {false, true}) {
    std::promise<bool> share;
    LaunchFile file(fileUrlFromPath("/share/a.mkv"),
                    [&](const std::string&) { return share.get_future().get(); });
    int opened = 0;
    file.whenThere([&](const QUrl&) { ++opened; });
    settle();
    EXPECT_EQ(opened, 0);
    if (isDropped) file.drop();
    share.set_value(true);
    EXPECT_FALSE(file.isMissing());
    if (isDropped)
      settle();
    else
      EXPECT_TRUE(waitFor([&] { return opened > 0; }));
    EXPECT_EQ(opened, isDropped ? 0 : 1);
  }
}

}  // namespace tromelo::testing
