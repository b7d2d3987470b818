#include <QFile>

#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

/// A session bus of the test's own.
class SessionBus {
 public:
  SessionBus() {
    process_.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--print-address")});
    process_.waitForReadyRead();
    address_ = QString::fromUtf8(process_.readLine()).trimmed();
  }
  ~SessionBus() {
    process_.terminate();
    process_.waitForFinished();
  }
  const QString& address() const { return address_; }

 private:
  QProcess process_;
  QString address_;
};

TEST_F(EndToEnd, ASecondStartHandsItsFileToTheFirst) {
  const SessionBus bus;
  ASSERT_FALSE(bus.address().isEmpty());
  RunningPlayer second;
  for (RunningPlayer* each : {&player, &second})
    each->environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
  player.start();
  ASSERT_TRUE(player.waitFor(QStringLiteral("status"), QStringLiteral("Open a video to begin")));

  second.start({clip("sample.mp4"), QStringLiteral("--start=3")});
  EXPECT_EQ(second.waitForEnd(), 0);
  ASSERT_TRUE(player.waitUntilPlaying());
  EXPECT_EQ(player.said(QStringLiteral("title")), QStringLiteral("sample"));
  EXPECT_GE(player.said(QStringLiteral("position")).toDouble(), 3);
  EXPECT_EQ(player.quit(), 0);
}

}  // namespace
}  // namespace tromelo::testing
