#pragma once

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <optional>
#include <utility>

#include "support/WaitFor.h"

namespace tromelo::testing {

/// Asks the engine itself, by its own JSON requests.
struct EngineProbe {
  explicit EngineProbe(QString path) : path_(std::move(path)) { connect(); }

  /// The program may replace an engine that hangs; this goes on with the new one.
  bool mayBeReplaced = false;
  int replaced = 0;

  /// Undefined when the engine has no such value now.
  QJsonValue get(const QString& property) { return command({"get_property", property}); }
  void set(const QString& property, const QJsonValue& value) {
    command({"set_property", property, value});
  }
  QJsonValue command(const QJsonArray& command) {
    auto reply = ask(command);
    if (!reply && mayBeReplaced) {
      ++replaced;
      connect();
      reply = ask(command);
    }
    EXPECT_TRUE(reply) << "the engine does not answer";
    return reply && (*reply)["error"] == "success" ? reply->value("data")
                                                   : QJsonValue(QJsonValue::Undefined);
  }
  [[nodiscard]] bool waitFor(const QString& property, const QJsonValue& value) {
    return testing::waitFor([&] { return get(property) == value; });
  }

 private:
  void connect() {
    socket_.abort();
    EXPECT_TRUE(testing::waitFor([&] {
      if (socket_.state() == QLocalSocket::UnconnectedState) socket_.connectToServer(path_);
      return socket_.state() == QLocalSocket::ConnectedState;
    })) << "there is no engine";
  }

  std::optional<QJsonObject> ask(const QJsonArray& command) {
    const int id = ++request_;
    const QJsonObject request{{"command", command}, {"request_id", id}};
    socket_.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    QJsonObject reply;
    const bool answered = testing::waitFor([&] {
      while (socket_.canReadLine()) {
        reply = QJsonDocument::fromJson(socket_.readLine()).object();
        if (reply["request_id"].toInt() == id && reply.contains("error")) return true;
      }
      return false;
    });
    return answered ? std::optional(reply) : std::nullopt;
  }

  const QString path_;
  QLocalSocket socket_;
  int request_ = 0;
};

}  // namespace tromelo::testing
