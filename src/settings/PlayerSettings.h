#pragma once

#include <QObject>

namespace tromelo {

class MpvEngine;
class UserDefaults;

/// What the person prefers, kept in the stored values. Main thread only.
class PlayerSettings : public QObject {
  Q_OBJECT
  Q_PROPERTY(double autoHideDelay READ autoHideDelay WRITE setAutoHideDelay NOTIFY changed)

 public:
  /// `defaults` outlives it.
  explicit PlayerSettings(UserDefaults& defaults, QObject* parent = nullptr);

  /// Idle seconds after which the player's controls hide; 0 means never.
  double autoHideDelay() const { return autoHideDelay_; }
  void setAutoHideDelay(double seconds);

  /// Writes every preference that the engine draws by to it.
  void apply(MpvEngine& engine) const;

 Q_SIGNALS:
  /// Any preference has changed.
  void changed();

 private:
  UserDefaults& defaults_;
  double autoHideDelay_ = 2.0;
};

}  // namespace tromelo
