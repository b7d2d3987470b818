#pragma once

#include <QHash>
#include <QObject>
#include <QTextStream>
#include <cstdio>
#include <functional>
#include <memory>

#include "platform/Clock.h"

namespace tromelo {

class PlaybackModel;
class PlayerWindowController;

/// Says what the player is doing, one "key: value" line for each change, for scripts that drive the
/// program. Changes within a short time come together. Main thread only.
class StateReport : public QObject {
  Q_OBJECT

 public:
  /// `windowText` gives the player window's state. All outlive it.
  StateReport(const PlaybackModel& playback, const PlayerWindowController& player, Clock& clock,
              std::function<QString()> windowText, std::FILE* out);

  /// What has changed since the last lines.
  void flush();
  /// Soon, with what else changes until then.
  Q_INVOKABLE void schedule();

 private:
  void line(const QString& key, const QString& value);

  const PlaybackModel& playback_;
  const PlayerWindowController& player_;
  Clock& clock_;
  std::function<QString()> windowText_;
  QTextStream out_;
  QHash<QString, QString> said_;
  std::unique_ptr<Clock::Timer> pending_;
};

}  // namespace tromelo
