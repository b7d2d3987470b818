#include "playback/PlaybackState.h"

#include "playback/HdrNote.h"
#include "playback/InfoRows.h"
#include "playback/SignalTexts.h"

namespace tromelo {

PlaybackState::PlaybackState(QObject* parent) : QObject(parent) {
  for (const auto changed : {&PlaybackState::dynamicRangeChanged, &PlaybackState::outputChanged,
                             &PlaybackState::displayChanged, &PlaybackState::decoderChanged,
                             &PlaybackState::containerChanged, &PlaybackState::isPrivateChanged})
    connect(this, changed, this, &PlaybackState::infoChanged);
  for (const auto changed : {&PlaybackState::chaptersChanged, &PlaybackState::bookmarksChanged})
    connect(this, changed, this, &PlaybackState::hasPlacesChanged);
}

QString PlaybackState::buffering() const {
  switch (buffering_.get()) {
    case Buffering::unknown:
      break;
    case Buffering::loading:
      return QStringLiteral("Loading");
    case Buffering::buffering:
      return QStringLiteral("Buffering");
    case Buffering::ready:
      return QStringLiteral("Ready");
    case Buffering::unavailable:
      return QStringLiteral("Unavailable");
  }
  return kUnknown;
}

QStringList PlaybackState::infoNames() {
  QStringList names;
  for (const InfoRow& row : infoRows()) names << QString::fromLatin1(row.name);
  return names;
}

QStringList PlaybackState::infoLabels() {
  QStringList labels;
  for (const InfoRow& row : infoRows()) labels << infoLabel(row);
  return labels;
}

QStringList PlaybackState::infoValues() const {
  QStringList values;
  for (const InfoRow& row : infoRows()) values << (row.value ? row.value(*this) : QString());
  return values;
}

QString PlaybackState::hdrNote() const {
  return tromelo::hdrNote(facts_, dynamicRange_, pictureWay_, screen_);
}

void PlaybackState::publishFacts() {
  // What nothing can be said of any more stays as it was until the next file.
  if (const auto text = videoSizeText(facts_)) videoSize_ = *text;
  if (const auto text = frameRateText(facts_)) frameRate_ = *text;
  if (const auto text = codecText(facts_)) codec_ = *text;
  if (const auto text = containerText(facts_)) container_ = *text;
  decoderFrameDrops_ = facts_.decoderDrops.value_or(0);
  outputFrameDrops_ = facts_.outputDrops.value_or(0);
  dynamicRange_ = dynamicRangeOf(facts_);
  output_ = outputText(facts_, dynamicRange_).value_or(kUnknown);
  Q_EMIT infoChanged();
}

void PlaybackState::forgetFacts() {
  facts_ = {};
  videoSize_ = kUnknown;
  frameRate_ = kUnknown;
  codec_ = kUnknown;
  publishFacts();
}

}  // namespace tromelo
