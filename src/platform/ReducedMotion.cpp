#include "platform/ReducedMotion.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>
#include <algorithm>

namespace tromelo {

namespace {

/// A desktop's setting, and the value with which it asks for less motion.
struct Setting {
  const char* group;
  const char* key;
  bool (*asks)(const QVariant& value);
};

constexpr Setting kSettings[]{
    {"org.freedesktop.appearance", "reduced-motion",
     [](const QVariant& value) { return value.toUInt() == 1; }},
    {"org.gnome.desktop.interface", "enable-animations",
     [](const QVariant& value) { return !value.toBool(); }},
    // A number in a text.
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor",
     [](const QVariant& value) {
       bool isNumber = false;
       return value.toDouble(&isNumber) <= 0 && isNumber;
     }},
};

const Setting* settingOf(const QString& group, const QString& key) {
  const auto found = std::ranges::find_if(kSettings, [&](const Setting& setting) {
    return group == QLatin1StringView(setting.group) && key == QLatin1StringView(setting.key);
  });
  return found == std::end(kSettings) ? nullptr : found;
}

QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
QString path() { return QStringLiteral("/org/freedesktop/portal/desktop"); }
QString interface() { return QStringLiteral("org.freedesktop.portal.Settings"); }

}  // namespace

ReducedMotion::ReducedMotion(QByteArrayView asked, const std::optional<QDBusConnection>& bus) {
  if (asked == "1")
    wanting_.insert(QString());
  else if (asked != "0" && bus)
    follow(*bus);
}

void ReducedMotion::follow(QDBusConnection bus) {
  bus.connect(service(), path(), interface(), QStringLiteral("SettingChanged"), this,
              SLOT(handleSetting(QString, QString, QDBusVariant)));
  QStringList groups;
  for (const Setting& setting : kSettings) groups << QString::fromLatin1(setting.group);
  QDBusMessage call =
      QDBusMessage::createMethodCall(service(), path(), interface(), QStringLiteral("ReadAll"));
  auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call << groups), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    handleSettings(watcher->reply());
    watcher->deleteLater();
  });
}

void ReducedMotion::handleSettings(const QDBusMessage& reply) {
  if (reply.signature() != QStringLiteral("a{sa{sv}}")) return;
  const auto groups =
      qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().first().value<QDBusArgument>());
  for (const auto& [group, values] : groups.asKeyValueRange())
    for (const auto& [key, value] : values.asKeyValueRange())
      handleSetting(group, key, QDBusVariant(value));
}

void ReducedMotion::handleSetting(const QString& group, const QString& key,
                                  const QDBusVariant& value) {
  const Setting* const setting = settingOf(group, key);
  if (!setting) return;
  const bool wasWanted = isWanted();
  if (setting->asks(value.variant()))
    wanting_.insert(group);
  else
    wanting_.erase(group);
  if (isWanted() != wasWanted) Q_EMIT changed();
}

}  // namespace tromelo
