#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <string>

#include "engine/MpvValue.h"
#include "platform/Background.h"

namespace tromelo {

class MpvEngine;
class PlayerSettings;

/// Where sound can go. They are looked for when somebody wants to know, not all the time. Main
/// thread only.
class SoundDevices : public QObject {
  Q_OBJECT
  Q_PROPERTY(QStringList labels READ labels NOTIFY changed)
  Q_PROPERTY(int index READ index WRITE choose NOTIFY changed)

 public:
  /// Gives what the engine calls "audio-device-list", on any thread; may still run when this object
  /// is gone.
  using Find = std::function<MpvValue()>;

  /// Both outlive it.
  SoundDevices(MpvEngine& engine, PlayerSettings& settings, Find find);

  /// Looks for what is plugged in now.
  Q_INVOKABLE void refresh();
  /// The same; `refreshed` is called when that is known.
  void refresh(std::function<void()> refreshed);

  /// Whether the driver, such as "pipewire", has one, when they were last looked for.
  bool hasOneOf(const std::string& driver) const;

  /// For people; the first is the desktop's own choice.
  QStringList labels() const;
  /// Of the one that the person wants, also where it isn't plugged in.
  int index() const;
  QString label() const { return labels().at(index()); }
  void choose(int index);
  void step(int steps);

  /// The sound couldn't be opened. A sentence where it goes elsewhere now; empty where there is
  /// nothing to be done.
  QString lost();
  /// Sound may go where the person wants it again.
  void tryWanted();

 Q_SIGNALS:
  void changed();

 private:
  struct Device {
    QString name;  // the engine's
    QString label;

    friend bool operator==(const Device&, const Device&) = default;
  };

  void take(const MpvValue& list);
  QString wanted() const;

  MpvEngine& engine_;
  PlayerSettings& settings_;
  const Find find_;
  QList<Device> devices_;     // but for the desktop's choice
  bool isElsewhere_ = false;  // than the person wants
  Background looks_;
};

}  // namespace tromelo
