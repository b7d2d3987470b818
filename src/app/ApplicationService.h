#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>
#include <chrono>
#include <optional>

namespace tromelo {

/// org.freedesktop.Application on the session bus: the desktop opens files and activates the
/// program through it, and a second start hands over to the first. Main thread only.
class ApplicationService : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  /// `bus` is the session bus, where there is one.
  explicit ApplicationService(std::optional<QDBusConnection> bus) : bus_(std::move(bus)) {}

  /// What a start asks of the program that runs already.
  struct Request {
    std::optional<QUrl> file;
    std::optional<double> start;  // seconds
    bool isPrivate = false;       // nothing is to be written of what is played from now on
    /// Asked before it is handed over; may wait.
    std::function<bool()> isFileMissing = [] { return false; };
  };

  enum class Role {
    first,       // we are the program now
    handedOver,  // another one took the request, or has it before it
    alone,       // there is no session bus
  };

  /// Waits for the other program's answer, at most `patience`.
  Role start(const Request& request, std::chrono::milliseconds patience = std::chrono::seconds(5));

  /// Leaves the name to the next program.
  void stop();

 public Q_SLOTS:
  void Activate(const QVariantMap& platformData);
  void Open(const QStringList& uris, const QVariantMap& platformData);
  void ActivateAction(const QString& action, const QVariantList& parameter,
                      const QVariantMap& platformData);

 Q_SIGNALS:
  void activated();
  /// Before what is opened then.
  void privacyAsked();
  /// Addresses as the desktop gave them.
  void filesOpened(const QList<QUrl>& files, std::optional<double> start);

 private:
  void takePlatformData(const QVariantMap& platformData);
  bool handOver(const Request& request, std::chrono::milliseconds patience);

  std::optional<QDBusConnection> bus_;
};

}  // namespace tromelo
