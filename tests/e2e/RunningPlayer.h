#pragma once

#include <QDir>
#include <QHash>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSize>
#include <QTemporaryDir>
#include <functional>
#include <iostream>

#include "support/WaitFor.h"

namespace tromelo::testing {

/// The real program on the test's display, with a home of its own, and what it reports.
struct RunningPlayer {
  /// Not started yet: change `environment` first where that is wanted.
  RunningPlayer() : environment(QProcessEnvironment::systemEnvironment()) {
    for (const char* kind : {"CONFIG", "STATE", "DATA"}) {
      const QString path = home_.filePath(QString(kind).toLower());
      QDir().mkpath(path);
      environment.insert(QString("XDG_%1_HOME").arg(kind), path);
    }
    environment.insert("TROMELO_IPC", ipcPath());
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QObject::connect(&process_, &QProcess::readyReadStandardOutput, &process_, [this] { read(); });
    QObject::connect(&process_, &QProcess::readyReadStandardError, &process_,
                     [this] { errors_ += process_.readAllStandardError(); });
  }
  /// Ends the program, in order if it can.
  ~RunningPlayer() {
    if (isRunning()) quit();
    if (isRunning()) process_.kill();
    process_.waitForFinished();
  }

  QProcessEnvironment environment;

  void start(const QStringList& arguments = {}) {
    said_.clear();
    process_.setProcessEnvironment(environment);
    process_.start(TROMELO_PROGRAM, QStringList{"--report"} + arguments);
  }

  /// The newest value of a reported key, such as "status".
  QString said(const QString& key) const { return said_.value(key); }
  /// Says what the program last said when that takes too long.
  [[nodiscard]] bool waitUntil(const std::function<bool()>& condition) {
    bool holds = false;
    const bool ran = isRunning();  // what has ended since comes to nothing any more
    // Software Vulkan next to another test takes its time to start.
    (void)testing::waitFor([&] { return (holds = condition()) || (ran && !isRunning()); },
                           std::chrono::seconds(60));
    if (holds) return true;
    std::cerr << "The program runs: " << isRunning() << "\nIt said:\n";
    for (auto [key, value] : said_.asKeyValueRange())
      std::cerr << "  " << qPrintable(key) << ": " << qPrintable(value) << '\n';
    std::cerr << errors_.toStdString() << '\n';
    return false;
  }
  /// Waits until a key has a value.
  [[nodiscard]] bool waitFor(const QString& key, const QString& value) {
    return waitUntil([&] { return said(key) == value; });
  }
  [[nodiscard]] bool waitUntilPlaying() {
    return waitUntil([&] {
      return isRevealed() && said("status") == "Playing" && said("position").toDouble() > 0;
    });
  }
  bool isRevealed() const { return said("window").startsWith(u"revealed"); }
  /// Of the revealed player window, device pixels; empty without one.
  QSize windowSize() const {
    static const QRegularExpression pattern("^revealed (\\d+)x(\\d+)$");
    const auto match = pattern.match(said("window"));
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
  }

  bool isRunning() const { return process_.state() != QProcess::NotRunning; }
  /// Sends SIGTERM and waits; gives the exit status, or -1 after a crash.
  int quit() {
    process_.terminate();
    return waitForEnd();
  }
  int waitForEnd() {
    if (!waitUntil([this] { return !isRunning(); })) return -1;
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
  }
  /// As a crash.
  void kill() {
    process_.kill();
    process_.waitForFinished();
  }
  qint64 processId() const { return process_.processId(); }

  QString ipcPath() const { return home_.filePath("ipc"); }
  QString homePath() const { return home_.path(); }
  QString logPath() const { return home_.filePath("state/Tromelo/mpv.log"); }
  /// The folders that running programs keep their sockets in.
  QStringList runtimeFiles() const {
    return QDir(environment.value("XDG_RUNTIME_DIR")).entryList({"tromelo*"}, QDir::Dirs);
  }
  QByteArray errors() const { return errors_; }

 private:
  void read() {
    while (process_.canReadLine()) {
      const QString line = QString::fromUtf8(process_.readLine()).chopped(1);
      const auto colon = line.indexOf(": ");
      if (colon > 0) said_.insert(line.first(colon), line.sliced(colon + 2));
    }
  }

  QTemporaryDir home_;
  QProcess process_;
  QHash<QString, QString> said_;
  QByteArray errors_;
};

}  // namespace tromelo::testing
