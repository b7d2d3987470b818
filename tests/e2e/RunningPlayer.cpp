#include "RunningPlayer.h"

#include <QDir>
#include <QRegularExpression>
#include <iostream>

#include "support/WaitFor.h"

namespace tromelo::testing {

namespace {

// Software Vulkan next to another test takes its time to start.
constexpr std::chrono::seconds kLimit(60);

}  // namespace

RunningPlayer::RunningPlayer() : environment(QProcessEnvironment::systemEnvironment()) {
  const auto set = [&](const char* name, const QString& path) {
    QDir().mkpath(path);
    environment.insert(name, path);
  };
  set("XDG_CONFIG_HOME", home_.filePath("config"));
  set("XDG_STATE_HOME", home_.filePath("state"));
  set("XDG_DATA_HOME", home_.filePath("data"));
  environment.insert("TROMELO_IPC", ipcPath());
  environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  QObject::connect(&process_, &QProcess::readyReadStandardOutput, &process_, [this] { read(); });
  QObject::connect(&process_, &QProcess::readyReadStandardError, &process_,
                   [this] { errors_ += process_.readAllStandardError(); });
}

RunningPlayer::~RunningPlayer() {
  if (isRunning()) quit();
  if (isRunning()) process_.kill();
  process_.waitForFinished();
}

void RunningPlayer::start(const QStringList& arguments) {
  process_.setProcessEnvironment(environment);
  process_.start(TROMELO_PROGRAM, QStringList{"--report"} + arguments);
}

void RunningPlayer::read() {
  while (process_.canReadLine()) {
    const QString line = QString::fromUtf8(process_.readLine()).chopped(1);
    const auto colon = line.indexOf(": ");
    if (colon > 0) said_.insert(line.first(colon), line.sliced(colon + 2));
  }
}

bool RunningPlayer::waitUntil(const std::function<bool()>& condition) {
  if (testing::waitFor(condition, kLimit)) return true;
  std::cerr << "The program runs: " << isRunning() << "\nIt said:\n";
  for (auto [key, value] : said_.asKeyValueRange())
    std::cerr << "  " << qPrintable(key) << ": " << qPrintable(value) << '\n';
  std::cerr << errors_.toStdString() << '\n';
  return false;
}

bool RunningPlayer::waitFor(const QString& key, const QString& value) {
  return waitUntil([&] { return said(key) == value; });
}

bool RunningPlayer::waitUntilPlaying() {
  return waitUntil([&] {
    return isRevealed() && said("status") == "Playing" && said("position").toDouble() > 0;
  });
}

QSize RunningPlayer::windowSize() const {
  static const QRegularExpression pattern("^revealed (\\d+)x(\\d+)$");
  const auto match = pattern.match(said("window"));
  return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

int RunningPlayer::quit() {
  process_.terminate();
  return waitForEnd();
}

int RunningPlayer::waitForEnd() {
  if (!waitUntil([this] { return !isRunning(); })) return -1;
  return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

QStringList RunningPlayer::runtimeFiles() const {
  return QDir(environment.value("XDG_RUNTIME_DIR")).entryList({"tromelo*"}, QDir::Dirs);
}

}  // namespace tromelo::testing
