#include "settings/PlayerSettings.h"

#include <QLocale>
#include <algorithm>

#include "engine/MpvEngine.h"
#include "platform/UserDefaults.h"

namespace tromelo {

namespace {

const QString kKey = QStringLiteral("playerSettings");

}  // namespace

PlayerSettings::PlayerSettings(UserDefaults& defaults, QObject* parent)
    : QObject(parent),
      defaults_(defaults),
      values_(preferencesOf(defaults.value(kKey).toObject())) {}

const QStringList& PlayerSettings::fonts() {
  static const QStringList fonts{QStringLiteral("Helvetica Neue"), QStringLiteral("Avenir Next"),
                                 QStringLiteral("Arial"),          QStringLiteral("Verdana"),
                                 QStringLiteral("Futura"),         QStringLiteral("Gill Sans"),
                                 QStringLiteral("Georgia"),        QStringLiteral("Menlo")};
  return fonts;
}

const QList<AutoHideChoice>& PlayerSettings::autoHideChoices() {
  static const QList<AutoHideChoice> choices{
      {QStringLiteral(QT_TR_NOOP("1 second")), 1},    {QStringLiteral(QT_TR_NOOP("2 seconds")), 2},
      {QStringLiteral(QT_TR_NOOP("3 seconds")), 3},   {QStringLiteral(QT_TR_NOOP("5 seconds")), 5},
      {QStringLiteral(QT_TR_NOOP("10 seconds")), 10}, {QStringLiteral(QT_TR_NOOP("Never")), 0}};
  return choices;
}

QStringList PlayerSettings::autoHideLabels() {
  QStringList labels;
  for (const AutoHideChoice& choice : autoHideChoices())
    labels << tr(choice.label.toUtf8().constData());
  return labels;
}

int PlayerSettings::autoHideIndex() const {
  const auto& choices = autoHideChoices();
  const auto chosen = std::ranges::find(choices, autoHideDelay(), &AutoHideChoice::seconds);
  return chosen == choices.end() ? -1 : int(chosen - choices.begin());
}

QString PlayerSettings::autoHideText() const {
  const int index = autoHideIndex();
  return index < 0 ? tr("%1 seconds").arg(QLocale().toString(autoHideDelay(), 'g', 3))
                   : autoHideLabels().at(index);
}

const QList<RgbaColor>& PlayerSettings::colorPresets() {
  static const QList<RgbaColor> presets{
      {1, 1, 1}, {1.0, 0.93, 0.35}, {0.55, 0.9, 1.0}, {0.6, 1.0, 0.6}};
  return presets;
}

QStringList PlayerSettings::colorPresetNames() {
  return {tr("White"), tr("Yellow"), tr("Light blue"), tr("Light green")};
}

void PlayerSettings::save(const PlayerPreferences& before) {
  defaults_.setFields(kKey, storedPreferences(values_), storedPreferences(before));
}

void PlayerSettings::resetSubtitleStyle() {
  constexpr bool subtitles = true;
  constexpr bool controls = false;
  const PlayerPreferences fresh;
#define TROMELO_RESET(type, name, setter, initial, limits, signal, part, ...) \
  if constexpr (part) set##setter(fresh.name);
  TROMELO_PREFERENCES(TROMELO_RESET)
#undef TROMELO_RESET
}

void PlayerSettings::apply(MpvEngine& engine) const {
  for (EngineProperty& property : engineProperties(values_))
    engine.setProperty(std::move(property.name), std::move(property.value));
}

}  // namespace tromelo
