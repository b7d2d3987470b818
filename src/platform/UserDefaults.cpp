#include "platform/UserDefaults.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>
#include <QSaveFile>

#include "platform/UserPaths.h"

namespace tromelo {

namespace {

constexpr int kLockWaitMilliseconds = 2000;

QString asideName(const QString& path) {
  return path + QStringLiteral(".damaged-") +
         QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
}

}  // namespace

UserDefaults UserDefaults::named(const QString& store) {
  return UserDefaults(userConfigDirectory() + u'/' + store + QStringLiteral("/defaults.json"));
}

UserDefaults::UserDefaults(const QString& path) : path_(path) { values_ = read(); }

QJsonObject UserDefaults::read() {
  QFile file(path_);
  if (!file.exists() || QFileInfo(path_).isDir() || !file.open(QIODevice::ReadOnly)) return values_;
  const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
  file.close();
  if (document.isObject()) return document.object();
  if (!QFile::rename(path_, asideName(path_)))
    lastError_ = QStringLiteral("The settings file %1 is damaged and could not be set aside.")
                     .arg(QDir::toNativeSeparators(path_));
  return values_;
}

bool UserDefaults::contains(const QString& key) const { return values_.contains(key); }

QJsonValue UserDefaults::value(const QString& key) const { return values_.value(key); }

bool UserDefaults::boolean(const QString& key) const { return values_.value(key).toBool(false); }

void UserDefaults::set(const QString& key, const QJsonValue& value) {
  if (contains(key) && values_.value(key) == value) return;
  values_.insert(key, value);
  write(key, value);
}

void UserDefaults::write(const QString& key, const QJsonValue& value) {
  lastError_.clear();
  QDir().mkpath(QFileInfo(path_).absolutePath());
  // Two running programs share the file: only this key changes, on top of what is there now.
  QLockFile lock(path_ + QStringLiteral(".lock"));
  lock.tryLock(kLockWaitMilliseconds);
  QJsonObject stored = read();
  stored.insert(key, value);
  QSaveFile file(path_);
  const QByteArray text = QJsonDocument(stored).toJson(QJsonDocument::Indented);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
    lastError_ = QStringLiteral("Your settings can't be saved in %1: %2.")
                     .arg(QDir::toNativeSeparators(path_), file.errorString());
}

}  // namespace tromelo
