#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <functional>
#include <memory>

namespace tromelo {

class DefaultsWriter;
struct DefaultsChange;
struct DefaultsPath;

/// The program's stored values: one JSON file that a person can read and edit. A change is seen at
/// once; it is on disk a moment later, atomically, merged with what another process wrote
/// meanwhile, and at the latest when the last copy of this object is gone. A damaged file is set
/// aside under another name. Main thread only.
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

  /// The value stays in memory even when it can't be written; then error() says why.
  void set(const QString& key, const QJsonValue& value);

  /// Stores those fields of a dictionary that differ from `before`, and the others only where the
  /// file lacks them: what a person edits in the file meanwhile stays.
  void setFields(const QString& key, const QJsonObject& fields, const QJsonObject& before);

  /// Waits until all changes are on disk, or have failed.
  void flush();

  /// Everything that is stored.
  const QJsonObject& all() const { return values_; }

  /// The first thing that went wrong, in one sentence for the person, or empty.
  QString error() const;
  /// Calls back with error(), once, from the event loop.
  void onError(std::function<void(const QString&)> tell);

 private:
  class Trouble;

  void write(const DefaultsPath& path, const DefaultsChange& change);

  QString path_;
  QJsonObject values_;
  std::shared_ptr<Trouble> trouble_;
  std::shared_ptr<DefaultsWriter> writer_;  // since the first change
};

}  // namespace tromelo
