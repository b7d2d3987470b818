#pragma once

#include <QByteArrayView>
#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <optional>
#include <set>

class QDBusMessage;

namespace tromelo {

/// Whether the person wants things on the screen to change in one step instead of moving or fading.
/// The desktop's portal is asked and followed; until it has answered, things move. Main thread
/// only.
class ReducedMotion : public QObject {
  Q_OBJECT

 public:
  /// "1" and "0" as `asked` settle it. The desktop is asked otherwise, where there is a bus.
  ReducedMotion(QByteArrayView asked, const std::optional<QDBusConnection>& bus);

  bool isWanted() const { return !wanting_.empty(); }

 Q_SIGNALS:
  void changed();

 private Q_SLOTS:
  void handleSetting(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  void follow(QDBusConnection bus);
  void handleSettings(const QDBusMessage& reply);

  std::set<QString> wanting_;  // the settings that ask for it
};

}  // namespace tromelo
