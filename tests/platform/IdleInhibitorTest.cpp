#include "platform/IdleInhibitor.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <set>

#include "support/BusDaemon.h"
#include "support/WaitFor.h"

namespace tromelo {
namespace {

/// The desktop's side.
class ScreenSaver : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

 public:
  std::set<uint> held;
  int inhibited = 0;

 public Q_SLOTS:
  uint Inhibit(const QString&, const QString&) {
    held.insert(++inhibited);
    return inhibited;
  }
  void UnInhibit(uint cookie) { held.erase(cookie); }
};

TEST(IdleInhibitor, HoldsTheScreenAwakeWhileItIsWanted) {
  const testing::BusDaemon daemon;
  ASSERT_FALSE(daemon.address().isEmpty());
  qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.address().toUtf8());
  const QString name = QStringLiteral("desktop");
  ScreenSaver saver;
  {
    QDBusConnection desktop = QDBusConnection::connectToBus(daemon.address(), name);
    ASSERT_TRUE(desktop.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), &saver,
                                       QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(desktop.registerService(QStringLiteral("org.freedesktop.ScreenSaver")));

    IdleInhibitor inhibitor;
    inhibitor.setInhibited(true);
    inhibitor.setInhibited(true);
    EXPECT_TRUE(testing::waitFor([&] { return saver.held.size() == 1; }));
    inhibitor.setInhibited(false);
    EXPECT_TRUE(testing::waitFor([&] { return saver.held.empty(); }));

    inhibitor.setInhibited(true);  // taken back before the desktop has answered
    inhibitor.setInhibited(false);
    EXPECT_TRUE(testing::waitFor([&] { return saver.inhibited == 2 && saver.held.empty(); }));

    inhibitor.setInhibited(true);
    EXPECT_TRUE(testing::waitFor([&] { return saver.held.size() == 1; }));
  }
  EXPECT_TRUE(testing::waitFor([&] { return saver.held.empty(); })) << "still held after its end";
  QDBusConnection::disconnectFromBus(name);
}

}  // namespace
}  // namespace tromelo

#include "IdleInhibitorTest.moc"
