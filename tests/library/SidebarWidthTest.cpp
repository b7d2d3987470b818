#include "library/SidebarWidth.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace tromelo::testing {

TEST(SidebarWidth, StaysWithinItsBoundsAndIsRemembered) {
  QTemporaryDir directory;
  UserDefaults defaults(directory.filePath("defaults.json"));
  EXPECT_EQ(SidebarWidth(defaults).width(), 230);
  for (const auto& [asked, width] : {std::pair{250.4, 250.0}, {1000.0, 300.0}, {-5.0, 200.0}}) {
    SidebarWidth(defaults).setWidth(asked);
    EXPECT_EQ(SidebarWidth(defaults).width(), width) << asked;
  }
  const QString key = defaults.all().keys().value(0);
  for (const QJsonValue& stored : {QJsonValue(9000), QJsonValue("wide")}) {
    defaults.set(key, stored);
    EXPECT_EQ(SidebarWidth(defaults).width(), stored.isDouble() ? 300 : 230);
  }
}

}  // namespace tromelo::testing
