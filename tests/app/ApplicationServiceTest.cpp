#include "app/ApplicationService.h"

#include <gtest/gtest.h>

#include "platform/FilePath.h"
#include "support/BusDaemon.h"
#include "support/WaitFor.h"

namespace tromelo {
namespace {

using Role = ApplicationService::Role;

class ApplicationServiceTest : public ::testing::Test {
 protected:
  ~ApplicationServiceTest() override {
    for (const char* name : {"first", "second"})
      QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
  }
  QDBusConnection connection(const char* name) const {
    return QDBusConnection::connectToBus(bus_.address(), QString::fromLatin1(name));
  }

  testing::BusDaemon bus_;
  ApplicationService first_{connection("first")};
  ApplicationService second_{connection("second")};
};

TEST_F(ApplicationServiceTest, WhatAProgramTakesLateIsPlayedOnce) {
  QList<QUrl> opened;
  QObject::connect(&first_, &ApplicationService::filesOpened, &first_,
                   [&opened](const QList<QUrl>& files) { opened += files; });
  ASSERT_EQ(first_.start({}), Role::first);
  const QUrl film = fileUrlFromPath("/a (b).mkv");
  // Nothing runs the first one's event loop meanwhile.
  EXPECT_EQ(second_.start({.file = film, .start = {}}, std::chrono::milliseconds(50)),
            Role::handedOver);
  EXPECT_TRUE(opened.isEmpty());
  EXPECT_TRUE(testing::waitFor([&] { return !opened.isEmpty(); }));
  EXPECT_EQ(opened, QList{film});
}

TEST_F(ApplicationServiceTest, TakesTheAddressesThatTheDesktopGives) {
  QList<QUrl> opened;
  QObject::connect(&first_, &ApplicationService::filesOpened, &first_,
                   [&opened](const QList<QUrl>& files) { opened = files; });
  const QString share = QStringLiteral("smb://nas/a.mkv");
  first_.Open({QStringLiteral("file:///a(b)"), share}, {});
  EXPECT_EQ(opened, (QList{fileUrlFromPath("/a(b)"), QUrl(share)}));
}

}  // namespace
}  // namespace tromelo
