#pragma once

#include <QHash>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>

namespace tromelo::testing {

/// The real program on the test's display, with a home of its own, and what it reports.
class RunningPlayer {
 public:
  /// Not started yet: change `environment` first where that is wanted.
  RunningPlayer();
  /// Ends the program, in order if it can.
  ~RunningPlayer();

  QProcessEnvironment environment;

  void start(const QStringList& arguments = {});

  /// The newest value of a reported key, such as "status".
  QString said(const QString& key) const { return said_.value(key); }
  /// Waits until a key has a value. Says what the program last said when that takes too long.
  [[nodiscard]] bool waitFor(const QString& key, const QString& value);
  [[nodiscard]] bool waitUntil(const std::function<bool()>& condition);
  [[nodiscard]] bool waitUntilPlaying();
  bool isRevealed() const { return said("window").startsWith(u"revealed"); }
  /// Of the revealed player window, device pixels; empty without one.
  QSize windowSize() const;

  bool isRunning() const { return process_.state() != QProcess::NotRunning; }
  /// Sends SIGTERM and waits; gives the exit status, or -1 after a crash.
  int quit();
  int waitForEnd();
  qint64 processId() const { return process_.processId(); }

  QString ipcPath() const { return home_.filePath("ipc"); }
  QString homePath() const { return home_.path(); }
  QString logPath() const { return home_.filePath("state/Tromelo/mpv.log"); }
  /// The folders that running programs keep their sockets in.
  QStringList runtimeFiles() const;
  QByteArray errors() const { return errors_; }

 private:
  void read();

  QTemporaryDir home_;
  QProcess process_;
  QHash<QString, QString> said_;
  QByteArray errors_;
};

}  // namespace tromelo::testing
