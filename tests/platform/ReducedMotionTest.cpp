#include "platform/ReducedMotion.h"

#include <gtest/gtest.h>

#include <QDBusMetaType>
#include <QVariantMap>

#include "support/BusDaemon.h"
#include "support/Table.h"
#include "support/WaitFor.h"

using SettingGroups = QMap<QString, QVariantMap>;

namespace tromelo::testing {

class SettingsPortal : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

 public:
  SettingGroups settings;
  int asked = 0;

 public Q_SLOTS:
  SettingGroups ReadAll(const QStringList& groups) {
    ++asked;
    SettingGroups found;
    for (const QString& group : groups)
      if (settings.contains(group)) found[group] = settings[group];
    return found;
  }

 Q_SIGNALS:
  void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

struct ReducedMotionTest : ::testing::Test {
  ReducedMotionTest() {
    qDBusRegisterMetaType<SettingGroups>();
    desktop_.registerObject("/org/freedesktop/portal/desktop", &portal_,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    desktop_.registerService("org.freedesktop.portal.Desktop");
  }

  BusDaemon daemon_;
  QDBusConnection desktop_ = daemon_.connect("desktop");
  QDBusConnection player_ = daemon_.connect("player");
  SettingsPortal portal_;
};

constexpr const char* kStandard = "org.freedesktop.appearance";
constexpr const char* kGnome = "org.gnome.desktop.interface";
constexpr const char* kKde = "org.kde.kdeglobals.KDE";

TEST_F(ReducedMotionTest, IsWhatTheDesktopSaysNowAndLater) {
  for (const auto& [group, key, less, more] : Table<const char*, const char*, QVariant, QVariant>{
           {kStandard, "reduced-motion", 1u, 0u},
           {kGnome, "enable-animations", false, true},
           {kKde, "AnimationDurationFactor", "0", "0.5"},
           {kKde, "AnimationDurationFactor", 0.0, "not a number"},
       }) {
    SCOPED_TRACE(group);
    portal_.settings = {{group, {{key, less}, {"cursor-size", 0}}},
                        {"another group", {{key, more}}}};
    ReducedMotion motion("", player_);
    EXPECT_FALSE(motion.isWanted()) << "nobody waits for the desktop";
    EXPECT_TRUE(waitFor([&] { return motion.isWanted(); }));
    int changes = 0;
    QObject::connect(&motion, &ReducedMotion::changed, &motion, [&] { ++changes; });
    Q_EMIT portal_.SettingChanged(group, "cursor-size", QDBusVariant(24));
    Q_EMIT portal_.SettingChanged(group, key, QDBusVariant(more));
    EXPECT_TRUE(waitFor([&] { return !motion.isWanted(); }));
    Q_EMIT portal_.SettingChanged(group, key, QDBusVariant(less));
    EXPECT_TRUE(waitFor([&] { return motion.isWanted(); }));
    EXPECT_EQ(changes, 2);
  }
}

TEST_F(ReducedMotionTest, IsNotAskedOfTheDesktopWhereThePersonSaysIt) {
  portal_.settings = {{kStandard, {{"reduced-motion", 1u}}}};
  const ReducedMotion none("0", player_);
  EXPECT_TRUE(ReducedMotion("1", player_).isWanted());
  EXPECT_FALSE(ReducedMotion("", {}).isWanted());
  const ReducedMotion asks("", player_);
  EXPECT_TRUE(waitFor([&] { return asks.isWanted(); }));
  EXPECT_EQ(portal_.asked, 1);
  EXPECT_FALSE(none.isWanted());
}

}  // namespace tromelo::testing

#include "ReducedMotionTest.moc"
