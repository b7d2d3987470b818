#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

#include "settings/AutoHideChoice.h"
#include "settings/PlayerPreferences.h"

namespace tromelo {

class MpvEngine;
class UserDefaults;

/// What the person prefers, loaded from the stored values and stored again at every
/// write.
/// Main thread only.
class PlayerSettings : public QObject {
  Q_OBJECT
  Q_PROPERTY(
      double autoHideDelay READ autoHideDelay WRITE setAutoHideDelay NOTIFY autoHideDelayChanged)
  /// In autoHideLabels; -1 for a delay that isn't offered.
  Q_PROPERTY(
      int autoHideIndex READ autoHideIndex WRITE setAutoHideIndex NOTIFY autoHideDelayChanged)
  Q_PROPERTY(QString autoHideText READ autoHideText NOTIFY autoHideDelayChanged)
  Q_PROPERTY(QStringList autoHideLabels READ autoHideLabels CONSTANT)
  Q_PROPERTY(QString subtitleFont READ subtitleFont WRITE setSubtitleFont NOTIFY changed)
  Q_PROPERTY(double subtitleSize READ subtitleSize WRITE setSubtitleSize NOTIFY changed)
  Q_PROPERTY(
      tromelo::RgbaColor subtitleColor READ subtitleColor WRITE setSubtitleColor NOTIFY changed)
  Q_PROPERTY(tromelo::RgbaColor subtitleOutlineColor READ subtitleOutlineColor WRITE
                 setSubtitleOutlineColor NOTIFY changed)
  Q_PROPERTY(tromelo::SubtitleBorderStyle subtitleBorderStyle READ subtitleBorderStyle WRITE
                 setSubtitleBorderStyle NOTIFY changed)
  /// In borderStyleLabels.
  Q_PROPERTY(int subtitleBorderStyleIndex READ subtitleBorderStyleIndex WRITE
                 setSubtitleBorderStyleIndex NOTIFY changed)
  Q_PROPERTY(bool subtitlesHaveEdge READ subtitlesHaveEdge NOTIFY changed)
  Q_PROPERTY(bool subtitleBold READ subtitleBold WRITE setSubtitleBold NOTIFY changed)
  Q_PROPERTY(bool subtitleOverridesStyled READ subtitleOverridesStyled WRITE
                 setSubtitleOverridesStyled NOTIFY changed)
  Q_PROPERTY(QStringList fonts READ fonts CONSTANT)
  Q_PROPERTY(QList<tromelo::AutoHideChoice> autoHideChoices READ autoHideChoices CONSTANT)
  Q_PROPERTY(QList<tromelo::RgbaColor> colorPresets READ colorPresets CONSTANT)
  Q_PROPERTY(QStringList colorPresetNames READ colorPresetNames CONSTANT)
  Q_PROPERTY(QStringList borderStyleLabels READ borderStyleLabels CONSTANT)

 public:
  /// Writes nothing back. `defaults` outlives it.
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

  /// Idle seconds after which the player's controls hide; 0 means never.
  double autoHideDelay() const { return values_.autoHideDelay; }
  const SubtitleStyle& subtitleStyle() const { return values_.subtitles; }
  const QString& subtitleFont() const { return values_.subtitles.font; }
  double subtitleSize() const { return values_.subtitles.size; }
  RgbaColor subtitleColor() const { return values_.subtitles.color; }
  RgbaColor subtitleOutlineColor() const { return values_.subtitles.outlineColor; }
  SubtitleBorderStyle subtitleBorderStyle() const { return values_.subtitles.borderStyle; }
  bool subtitleBold() const { return values_.subtitles.bold; }
  bool subtitleOverridesStyled() const { return values_.subtitles.overridesStyled; }

  void setAutoHideDelay(double seconds);
  void setSubtitleFont(const QString& family);
  void setSubtitleSize(double size);
  void setSubtitleColor(const RgbaColor& color);
  void setSubtitleOutlineColor(const RgbaColor& color);
  void setSubtitleBorderStyle(SubtitleBorderStyle style);
  void setSubtitleBold(bool bold);
  void setSubtitleOverridesStyled(bool overrides);

  /// The subtitles as they are before anyone prefers anything; the controls' delay stays.
  Q_INVOKABLE void resetSubtitleStyle();

  /// Writes every preference that the engine draws by to it.
  void apply(MpvEngine& engine) const;

 Q_SIGNALS:
  /// Before each write, also of the value that is there. Whoever reads the new value when it is
  /// written connects queued.
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
  void write(T& field, T value);
  void save(const PlayerPreferences& before);

  UserDefaults& defaults_;
  PlayerPreferences values_;
};

}  // namespace tromelo
