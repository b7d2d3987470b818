#include "platform/UserDefaults.h"

#include <mutex>

#include "platform/DefaultsFile.h"
#include "platform/DefaultsWriter.h"
#include "platform/MainThread.h"
#include "platform/UserPaths.h"

namespace tromelo {

/// Takes an error from any thread to the main thread, and to the person at most once.
class UserDefaults::Trouble : public std::enable_shared_from_this<Trouble> {
 public:
  void happened(const QString& error) {
    const std::scoped_lock lock(mutex_);
    if (!error_.isEmpty() || error.isEmpty()) return;
    error_ = error;
    tellLater();
  }

  QString error() const {
    const std::scoped_lock lock(mutex_);
    return error_;
  }

  void listen(std::function<void(const QString&)> listener) {
    listener_ = std::move(listener);
    if (!error().isEmpty()) tellLater();
  }

 private:
  void tellLater() {
    postToMainThread([trouble = weak_from_this()] {
      const auto alive = trouble.lock();
      if (!alive) return;
      if (const auto listener = std::exchange(alive->listener_, {})) listener(alive->error());
    });
  }

  mutable std::mutex mutex_;
  QString error_;
  std::function<void(const QString&)> listener_;  // main thread only
};

UserDefaults UserDefaults::named(const QString& store) {
  return UserDefaults(userConfigDirectory() + u'/' + store + QStringLiteral("/defaults.json"));
}

UserDefaults::UserDefaults(const QString& path)
    : path_(path), trouble_(std::make_shared<Trouble>()) {
  const DefaultsResult stored = readDefaults(path);
  values_ = stored.values;
  trouble_->happened(stored.error);
}

bool UserDefaults::contains(const QString& key) const { return values_.contains(key); }

QJsonValue UserDefaults::value(const QString& key) const { return values_.value(key); }

bool UserDefaults::boolean(const QString& key) const { return values_.value(key).toBool(false); }

void UserDefaults::set(const QString& key, const QJsonValue& value) {
  if (contains(key) && values_.value(key) == value) return;
  values_.insert(key, value);
  write({key}, {value});
}

void UserDefaults::setFields(const QString& key, const QJsonObject& fields,
                             const QJsonObject& before) {
  QJsonObject stored = value(key).toObject();
  for (auto field = fields.begin(); field != fields.end(); ++field) {
    const bool fills = before.value(field.key()) == field.value();
    if (fills && stored.contains(field.key())) continue;
    stored.insert(field.key(), field.value());
    write({key, field.key()}, {field.value(), fills});
  }
  values_.insert(key, stored);
}

void UserDefaults::write(const DefaultsPath& path, const DefaultsChange& change) {
  if (!writer_) {
    writer_ = std::make_shared<DefaultsWriter>(
        path_, [trouble = trouble_](const QString& error) { trouble->happened(error); });
  }
  writer_->write(path, change);
}

void UserDefaults::flush() {
  if (writer_) writer_->flush();
}

QString UserDefaults::error() const { return trouble_->error(); }

void UserDefaults::onError(std::function<void(const QString&)> tell) {
  trouble_->listen(std::move(tell));
}

}  // namespace tromelo
