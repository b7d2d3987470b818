#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <map>

namespace tromelo::testing {

/// The desktop's screen saver service on a bus, which forgets those who have left it.
class FakeScreenSaver : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

 public:
  explicit FakeScreenSaver(QDBusConnection bus) {
    bus.registerObject("/org/freedesktop/ScreenSaver", this, QDBusConnection::ExportAllSlots);
    bus.registerService("org.freedesktop.ScreenSaver");
    watcher_.setConnection(bus);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString& gone) {
              std::erase_if(held_, [&gone](const auto& entry) { return entry.second == gone; });
            });
  }

  std::size_t held() const { return held_.size(); }
  uint asked() const { return asked_; }

 public Q_SLOTS:
  uint Inhibit(const QString&, const QString&) {
    watcher_.addWatchedService(message().service());
    ++asked_;
    // Who asked may have died before it was heard.
    if (connection().interface()->isServiceRegistered(message().service()))
      held_.emplace(asked_, message().service());
    return asked_;
  }
  void UnInhibit(uint cookie) { held_.erase(cookie); }

 private:
  QDBusServiceWatcher watcher_;
  std::map<uint, QString> held_;  // by cookie, whose it is
  uint asked_ = 0;
};

}  // namespace tromelo::testing
