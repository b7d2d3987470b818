#include "playback/MediaTrack.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <algorithm>

#include "engine/MpvValue.h"
#include "platform/FilePath.h"
#include "platform/LanguageName.h"

namespace tromelo {

namespace {

std::string_view engineName(MediaTrack::Kind kind) {
  switch (kind) {
    case MediaTrack::Kind::video:
      return "video";
    case MediaTrack::Kind::audio:
      return "audio";
    case MediaTrack::Kind::sub:
      break;
  }
  return "sub";
}

bool flag(const MpvMap& entry, std::string_view key) {
  const auto* value = mpvEntry<bool>(entry, key);
  return value && *value;
}

std::optional<qint64> channelCount(const MpvMap& entry) {
  for (const char* key : {"demux-channel-count", "audio-channels"}) {
    if (const auto* count = mpvEntry<std::int64_t>(entry, key)) return *count;
  }
  return {};
}

std::optional<qint64> streamNumber(const MpvMap& entry) {
  const auto* number = mpvEntry<std::int64_t>(entry, "ff-index");
  return number && *number >= 0 ? std::optional<qint64>(*number) : std::nullopt;
}

std::string fileName(const MpvMap& entry) {
  const auto* name = mpvEntry<std::string>(entry, "external-filename");
  return name ? *name : std::string();
}

bool isSecond(const MpvMap& entry) {
  const auto* place = mpvEntry<std::int64_t>(entry, "main-selection");
  return flag(entry, "selected") && place && *place > 0;
}

MediaTrack mediaTrack(const MpvMap& entry, qint64 id, MediaTrack::Kind kind) {
  auto title = nodeText(entry, "title");
  if (title && title->isEmpty()) title.reset();
  return {.id = id,
          .kind = kind,
          .title = title,
          .language = nodeText(entry, "lang"),
          .codec = nodeText(entry, "codec"),
          .channels = channelCount(entry),
          .isDefault = flag(entry, "default"),
          .isForced = flag(entry, "forced"),
          .isExternal = flag(entry, "external"),
          .isSelected = flag(entry, "selected") && !isSecond(entry),
          .isSecond = isSecond(entry),
          .file = fileName(entry),
          .stream = streamNumber(entry)};
}

QString channelText(qint64 count) {
  if (count == 1) return QCoreApplication::translate("MediaTrack", "Mono");
  if (count == 2) return QCoreApplication::translate("MediaTrack", "Stereo");
  return QCoreApplication::translate("MediaTrack", "%1 ch").arg(count);
}

/// As people who read the current locale see it.
bool containsWithoutCase(const QString& text, const QString& part) {
  const QLocale reader;
  return reader.toLower(text).contains(reader.toLower(part));
}

/// The position behind the first selected track; the first where none is selected.
qsizetype behindSelected(const QList<MediaTrack>& tracks) {
  const auto selected = std::ranges::find_if(tracks, &MediaTrack::isSelected);
  return selected == tracks.end() ? 0 : selected - tracks.begin() + 1;
}

}  // namespace

QString MediaTrack::name() const {
  const QString named = language ? languageName(*language) : QString();
  if (named.isEmpty())
    return title.value_or(QCoreApplication::translate("MediaTrack", "Track %1").arg(id));
  if (!title) return named;
  if (containsWithoutCase(*title, named)) return *title;
  return QStringLiteral("%1 (%2)").arg(*title, named);
}

std::string MediaTrack::choice() const {
  return isExternal ? absolutePath(file) : std::to_string(id);
}

QString MediaTrack::details() const {
  QStringList parts;
  if (codec && !codec->isEmpty()) parts << codec->toUpper();
  if (channels) parts << channelText(*channels);
  if (isForced) parts << QCoreApplication::translate("MediaTrack", "Forced");
  if (isExternal) parts << QCoreApplication::translate("MediaTrack", "External");
  return parts.join(QStringLiteral(" · "));
}

QList<MediaTrack> mediaTracks(const MpvValue& list, MediaTrack::Kind kind) {
  QList<MediaTrack> tracks;
  for (const MpvMap* entry : list.list()) {
    const auto* id = mpvEntry<std::int64_t>(*entry, "id");
    const auto* type = mpvEntry<std::string>(*entry, "type");
    if (id && type && *type == engineName(kind)) tracks.append(mediaTrack(*entry, *id, kind));
  }
  return tracks;
}

const MediaTrack* nextSubtitle(const QList<MediaTrack>& tracks) {
  const qsizetype next = behindSelected(tracks);
  return next < tracks.size() ? &tracks[next] : nullptr;
}

const MediaTrack* nextAudio(const QList<MediaTrack>& tracks) {
  if (tracks.isEmpty()) return nullptr;
  return &tracks[behindSelected(tracks) % tracks.size()];
}

}  // namespace tromelo
