#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QObject>
#include <map>

namespace tromelo::testing {

/// The desktop's screen saver service on a bus, which forgets those who have left it.
class FakeScreenSaver : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

 public:
  explicit FakeScreenSaver(const QDBusConnection& bus);

  std::size_t held() const { return held_.size(); }
  uint asked() const { return asked_; }

 public Q_SLOTS:
  uint Inhibit(const QString& application, const QString& reason);
  void UnInhibit(uint cookie);

 private:
  QDBusServiceWatcher watcher_;
  std::map<uint, QString> held_;  // by cookie, whose it is
  uint asked_ = 0;
};

}  // namespace tromelo::testing
