#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QLocalSocket>
#include <QString>

namespace tromelo::testing {

/// Asks the engine itself, by its own JSON requests.
class EngineProbe {
 public:
  explicit EngineProbe(const QString& path);

  /// Undefined when the engine has no such value now.
  QJsonValue get(const QString& property);
  void set(const QString& property, const QJsonValue& value);
  QJsonValue command(const QJsonArray& command);
  [[nodiscard]] bool waitFor(const QString& property, const QJsonValue& value);

 private:
  QLocalSocket socket_;
  int request_ = 0;
};

}  // namespace tromelo::testing
