#include "platform/DefaultsFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>
#include <QSaveFile>
#include <optional>

namespace tromelo {

namespace {

constexpr int kLockWaitMilliseconds = 2000;

QString asideName(const QString& path) {
  return path + QStringLiteral(".damaged-") +
         QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
}

QString cannotRead(const QString& path, const QString& why) {
  return QCoreApplication::translate(
             "DefaultsFile", "Your settings in %1 can't be read, and changes can't be saved: %2.")
      .arg(path, why);
}

QString cannotSave(const QString& path, const QString& why) {
  return QCoreApplication::translate("DefaultsFile", "Your settings can't be saved in %1: %2.")
      .arg(path, why);
}

/// None when it can't be read, which is no reason to lose what is in it.
std::optional<DefaultsResult> tryRead(const QString& path, QString& error) {
  if (!QFileInfo::exists(path)) return DefaultsResult();
  QFile file(path);
  QByteArray text;
  if (file.open(QIODevice::ReadOnly)) text = file.readAll();
  if (file.error() != QFile::NoError) {
    error = file.errorString();
    return {};
  }
  file.close();
  const QJsonDocument document = QJsonDocument::fromJson(text);
  if (document.isObject()) return DefaultsResult{.values = document.object()};
  const QString aside = asideName(path);
  if (!QFile::rename(path, aside)) {
    error = QCoreApplication::translate("DefaultsFile", "it is damaged, and can't be set aside");
    return {};
  }
  return DefaultsResult{
      .values = {},
      .error = QCoreApplication::translate("DefaultsFile",
                                           "Your settings file was damaged; it is kept as %1.")
                   .arg(aside)};
}

void put(QJsonObject& values, const DefaultsPath& path, const DefaultsChange& change) {
  if (path.field.isEmpty()) {
    if (!change.fills || !values.contains(path.key)) values.insert(path.key, change.value);
    return;
  }
  QJsonObject dictionary = values.value(path.key).toObject();
  put(dictionary, {path.field}, change);
  values.insert(path.key, dictionary);
}

}  // namespace

DefaultsResult readDefaults(const QString& path) {
  QString error;
  if (auto read = tryRead(path, error)) return *std::move(read);
  return {.values = {}, .error = cannotRead(path, error), .failed = true};
}

DefaultsResult mergeDefaults(const QString& path, const DefaultsChanges& changes) {
  QDir().mkpath(QFileInfo(path).absolutePath());
  QLockFile lock(path + QStringLiteral(".lock"));
  QString error;
  if (!lock.tryLock(kLockWaitMilliseconds) && lock.error() == QLockFile::LockFailedError)
    return {.values = {},
            .error = cannotSave(path, QStringLiteral("another program holds it")),
            .failed = true};
  auto merged = tryRead(path, error);
  if (!merged) return {.values = {}, .error = cannotSave(path, error), .failed = true};
  for (const auto& [place, change] : changes) put(merged->values, place, change);
  QSaveFile file(path);
  const QByteArray text = QJsonDocument(merged->values).toJson(QJsonDocument::Indented);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
    return {.values = {}, .error = cannotSave(path, file.errorString()), .failed = true};
  return *std::move(merged);
}

}  // namespace tromelo
