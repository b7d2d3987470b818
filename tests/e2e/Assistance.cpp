#include "Assistance.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/WaitFor.h"

namespace tromelo::testing {

namespace {

QString program() { return QStringLiteral(TROMELO_SCREEN_READER); }

SeenObject objectOf(const QString& line) {
  const QStringList parts = line.split(u'\t');
  if (parts.size() != 8) return {};
  const QStringList place = parts[5].split(u' ');
  SeenObject object;
  object.within = parts[0];
  object.window = parts[0].section(u'/', 1, 1);
  object.role = parts[1];
  object.name = parts[2];
  object.description = parts[3];
  object.states = parts[4].split(u' ', Qt::SkipEmptyParts);
  if (place.size() == 4)
    object.place = {place[0].toInt(), place[1].toInt(), place[2].toInt(), place[3].toInt()};
  object.value = parts[6];
  object.actions = parts[7].split(u' ', Qt::SkipEmptyParts);
  return object;
}

}  // namespace

Assistance::Assistance(RunningPlayer& player) : player_(player) {
  player.environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus_.address());
  player.environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"),
                            QStringLiteral("1"));
}

Assistance::~Assistance() {
  listener_.kill();
  listener_.waitForFinished();
}

QString Assistance::ask(const QStringList& question) {
  QProcess process;
  process.setProcessEnvironment(player_.environment);
  process.start(program(), QStringList{QString::number(player_.processId())} + question);
  process.waitForFinished();
  return process.exitCode() == 0 ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

std::vector<SeenObject> Assistance::see() {
  std::vector<SeenObject> objects;
  for (const QString& line : ask({}).split(u'\n'))
    if (SeenObject object = objectOf(line); object.is("showing"))
      objects.push_back(std::move(object));
  return objects;
}

SeenObject Assistance::find(const char* role, const char* name, const QStringList& states) {
  SeenObject found;
  // What follows from a failure isn't waited for.
  if (::testing::Test::HasFailure()) return found;
  const auto fits = [&](const SeenObject& object) {
    return object.role == QLatin1StringView(role) && object.name == QString::fromUtf8(name) &&
           std::ranges::all_of(states, [&](const QString& s) { return object.states.contains(s); });
  };
  EXPECT_TRUE(waitFor([&] {
    const std::vector<SeenObject> seen = see();
    const auto place = std::ranges::find_if(seen, fits);
    if (place != seen.end()) found = *place;
    return place != seen.end();
  })) << role
      << " \"" << name << "\" " << states.join(u' ').toStdString();
  return found;
}

bool Assistance::press(const char* role, const char* name) {
  find(role, name);
  return !ask({QStringLiteral("press"), QString::fromLatin1(role), QString::fromUtf8(name)})
              .isEmpty();
}

bool Assistance::set(const char* role, const char* name, double value) {
  find(role, name);
  return !ask({QStringLiteral("set"), QString::fromLatin1(role), QString::fromUtf8(name),
               QString::number(value)})
              .isEmpty();
}

void Assistance::listen() {
  listener_.setProcessEnvironment(player_.environment);
  QObject::connect(&listener_, &QProcess::readyReadStandardOutput, &listener_,
                   [this] { heard_ += listener_.readAllStandardOutput(); });
  listener_.start(program(), {QString::number(player_.processId()), QStringLiteral("listen")});
  EXPECT_TRUE(hears("listening"));
}

bool Assistance::hears(const char* announcement) {
  return player_.waitUntil([&] { return heard_.split('\n').contains(QByteArray(announcement)); });
}

}  // namespace tromelo::testing
