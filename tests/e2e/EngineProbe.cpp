#include "EngineProbe.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "support/WaitFor.h"

namespace tromelo::testing {

EngineProbe::EngineProbe(const QString& path) {
  const bool connected = testing::waitFor([&] {
    if (socket_.state() == QLocalSocket::UnconnectedState) socket_.connectToServer(path);
    return socket_.state() == QLocalSocket::ConnectedState;
  });
  EXPECT_TRUE(connected) << "the engine does not answer";
}

QJsonValue EngineProbe::command(const QJsonArray& command) {
  const int id = ++request_;
  const QJsonObject request{{"command", command}, {"request_id", id}};
  socket_.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
  QJsonObject reply;
  const bool answered = testing::waitFor([&] {
    while (socket_.canReadLine()) {
      reply = QJsonDocument::fromJson(socket_.readLine()).object();
      if (reply.value("request_id").toInt() == id && reply.contains("error")) return true;
    }
    return false;
  });
  EXPECT_TRUE(answered);
  if (reply.value("error").toString() != "success") return QJsonValue(QJsonValue::Undefined);
  return reply.value("data");
}

QJsonValue EngineProbe::get(const QString& property) { return command({"get_property", property}); }

void EngineProbe::set(const QString& property, const QJsonValue& value) {
  command({"set_property", property, value});
}

bool EngineProbe::waitFor(const QString& property, const QJsonValue& value) {
  return testing::waitFor([&] { return get(property) == value; });
}

}  // namespace tromelo::testing
