#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

namespace tromelo {

/// The program's stored values: one JSON file that a person can read and edit. A change is on disk
/// when the setter returns, atomically, and merges with what another process wrote meanwhile. A
/// damaged file is set aside under another name. Main thread only.
class UserDefaults {
 public:
  /// `store` names a folder of the user's configuration directory: "Tromelo".
  static UserDefaults named(const QString& store);

  /// `path` need not exist.
  explicit UserDefaults(const QString& path);

  bool contains(const QString& key) const;
  /// Undefined when there is none.
  QJsonValue value(const QString& key) const;
  /// False only for a stored `false`, another type or nothing.
  bool boolean(const QString& key) const;

  /// The value stays in memory even when it can't be written; then lastError() says why.
  void set(const QString& key, const QJsonValue& value);

  /// Everything that is stored.
  const QJsonObject& all() const { return values_; }

  /// One sentence for the person, or empty.
  const QString& lastError() const { return lastError_; }

 private:
  QJsonObject read();
  void write(const QString& key, const QJsonValue& value);

  QString path_;
  QJsonObject values_;
  QString lastError_;
};

}  // namespace tromelo
