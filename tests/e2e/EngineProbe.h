#pragma once

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>

#include "support/WaitFor.h"

namespace tromelo::testing {

/// Asks the engine itself, by its own JSON requests.
struct EngineProbe {
  explicit EngineProbe(const QString& path) {
    EXPECT_TRUE(testing::waitFor([&] {
      if (socket_.state() == QLocalSocket::UnconnectedState) socket_.connectToServer(path);
      return socket_.state() == QLocalSocket::ConnectedState;
    })) << "the engine does not answer";
  }

  /// Undefined when the engine has no such value now.
  QJsonValue get(const QString& property) { return command({"get_property", property}); }
  void set(const QString& property, const QJsonValue& value) {
    command({"set_property", property, value});
  }
  QJsonValue command(const QJsonArray& command) {
    const int id = ++request_;
    const QJsonObject request{{"command", command}, {"request_id", id}};
    socket_.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    QJsonObject reply;
    EXPECT_TRUE(testing::waitFor([&] {
      while (socket_.canReadLine()) {
        reply = QJsonDocument::fromJson(socket_.readLine()).object();
        if (reply["request_id"].toInt() == id && reply.contains("error")) return true;
      }
      return false;
    }));
    return reply["error"] == "success" ? reply.value("data") : QJsonValue(QJsonValue::Undefined);
  }
  [[nodiscard]] bool waitFor(const QString& property, const QJsonValue& value) {
    return testing::waitFor([&] { return get(property) == value; });
  }

 private:
  QLocalSocket socket_;
  int request_ = 0;
};

}  // namespace tromelo::testing
