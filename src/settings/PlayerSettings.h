#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>
#include <utility>

#include "settings/PlayerPreferences.h"

namespace tromelo {

class MpvEngine;
class UserDefaults;

/// A delay that people are offered, after which the player's controls hide.
class AutoHideChoice {
  Q_GADGET
  Q_PROPERTY(QString label MEMBER label CONSTANT)
  Q_PROPERTY(double seconds MEMBER seconds CONSTANT)

 public:
  QString label;
  double seconds = 0;  // 0 is never

  friend bool operator==(const AutoHideChoice&, const AutoHideChoice&) = default;
};

/// What the person prefers, loaded from the stored values and stored again at every write: each row
/// of TROMELO_PREFERENCES is a property of its name. Main thread only.
class PlayerSettings : public QObject {
  Q_OBJECT
#define TROMELO_PROPERTY(type, name, setter, initial, limits, signal, ...) \
  Q_PROPERTY(type name READ name WRITE set##setter NOTIFY signal)
  TROMELO_PREFERENCES(TROMELO_PROPERTY)
#undef TROMELO_PROPERTY
  /// Which of autoHideLabels it is; -1 for a delay that isn't offered.
  Q_PROPERTY(
      int autoHideIndex READ autoHideIndex WRITE setAutoHideIndex NOTIFY autoHideDelayChanged)
  Q_PROPERTY(QString autoHideText READ autoHideText NOTIFY autoHideDelayChanged)
  Q_PROPERTY(QStringList autoHideLabels READ autoHideLabels CONSTANT)
  /// Which of borderStyleLabels it is.
  Q_PROPERTY(int subtitleBorderStyleIndex READ subtitleBorderStyleIndex WRITE
                 setSubtitleBorderStyleIndex NOTIFY changed)
  Q_PROPERTY(bool subtitlesHaveEdge READ subtitlesHaveEdge NOTIFY changed)
  Q_PROPERTY(QStringList fonts READ fonts CONSTANT)
  Q_PROPERTY(QList<tromelo::AutoHideChoice> autoHideChoices READ autoHideChoices CONSTANT)
  Q_PROPERTY(QList<tromelo::RgbaColor> colorPresets READ colorPresets CONSTANT)
  Q_PROPERTY(QStringList colorPresetNames READ colorPresetNames CONSTANT)
  Q_PROPERTY(QStringList borderStyleLabels READ borderStyleLabels CONSTANT)

 public:
  /// Loads, and writes nothing back. `defaults` outlives it.
  explicit PlayerSettings(UserDefaults& defaults, QObject* parent = nullptr);

  // What is offered, in order.
  static const QStringList& fonts();
  static const QList<AutoHideChoice>& autoHideChoices();
  static const QList<RgbaColor>& colorPresets();
  /// One for each preset, in the person's language.
  static QStringList colorPresetNames();
  /// In the person's language.
  static QStringList autoHideLabels();
  static QStringList borderStyleLabels() { return tromelo::borderStyleLabels(); }

  const PlayerPreferences& preferences() const { return values_; }

#define TROMELO_MEMBER(type, name, setter, initial, limits, signal, ...) \
  const type& name() const { return values_.name; }                      \
  void set##setter(const type& value) {                                  \
    write(values_.name, limits(value), &PlayerSettings::signal);         \
  }
  TROMELO_PREFERENCES(TROMELO_MEMBER)
#undef TROMELO_MEMBER

  /// Gives the preferences for subtitles their defaults; the controls' delay stays.
  Q_INVOKABLE void resetSubtitleStyle();

  /// Writes to the engine every preference that it draws by.
  void apply(MpvEngine& engine) const;

 Q_SIGNALS:
  /// Before each write, even of the same value. A queued connection finds the new one.
  void willChange();
  /// Some preference has another value.
  void changed();
  void autoHideDelayChanged();

 private:
  int autoHideIndex() const;
  void setAutoHideIndex(int index) { setAutoHideDelay(autoHideChoices().at(index).seconds); }
  QString autoHideText() const;
  int subtitleBorderStyleIndex() const { return static_cast<int>(subtitleBorderStyle()); }
  void setSubtitleBorderStyleIndex(int index) {
    setSubtitleBorderStyle(static_cast<SubtitleBorderStyle>(index));
  }
  bool subtitlesHaveEdge() const { return subtitleBorderStyle() != SubtitleBorderStyle::box; }
  template <typename T>
  void write(T& field, T value, void (PlayerSettings::*announce)()) {
    Q_EMIT willChange();
    const bool isOther = field != value;
    const PlayerPreferences before = values_;
    field = std::move(value);
    save(before);
    if (!isOther) return;
    Q_EMIT changed();
    if (announce != &PlayerSettings::changed) Q_EMIT(this->*announce)();
  }
  void save(const PlayerPreferences& before);

  UserDefaults& defaults_;
  PlayerPreferences values_;
};

}  // namespace tromelo
