#include "support/FakeScreenSaver.h"

#include <QDBusMessage>

namespace tromelo::testing {

FakeScreenSaver::FakeScreenSaver(const QDBusConnection& bus) {
  QDBusConnection desktop = bus;
  desktop.registerObject("/org/freedesktop/ScreenSaver", this, QDBusConnection::ExportAllSlots);
  desktop.registerService("org.freedesktop.ScreenSaver");
  watcher_.setConnection(bus);
  watcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
  connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this](const QString& gone) {
    std::erase_if(held_, [&gone](const auto& entry) { return entry.second == gone; });
  });
}

uint FakeScreenSaver::Inhibit(const QString&, const QString&) {
  watcher_.addWatchedService(message().service());
  held_.emplace(++asked_, message().service());
  return asked_;
}

void FakeScreenSaver::UnInhibit(uint cookie) { held_.erase(cookie); }

}  // namespace tromelo::testing
