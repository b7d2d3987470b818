#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <optional>
#include <string>

namespace tromelo {

class MpvValue;

/// One track of the current file.
class MediaTrack {
  Q_GADGET
  Q_PROPERTY(qint64 id MEMBER id CONSTANT)
  Q_PROPERTY(Kind kind MEMBER kind CONSTANT)
  Q_PROPERTY(QString name READ name CONSTANT)
  Q_PROPERTY(QString details READ details CONSTANT)
  Q_PROPERTY(bool isSelected MEMBER isSelected CONSTANT)

 public:
  enum class Kind { video, audio, sub };
  Q_ENUM(Kind)

  qint64 id = 0;  // the engine's number, counted within the kind
  Kind kind = Kind::video;
  std::optional<QString> title;
  std::optional<QString> language;  // a code
  std::optional<QString> codec;
  std::optional<qint64> channels;
  bool isDefault = false;
  bool isForced = false;
  bool isExternal = false;
  bool isSelected = false;
  bool isSecond = false;              // of the subtitles, shown beside the selected ones
  std::string file = {};              // the path of an external one, bytes
  std::optional<qint64> stream = {};  // in its file, as libavformat counts them; none: it isn't one

  /// For people, with the language in theirs: "Commentary (English)".
  QString name() const;
  /// "EAC3 · 6 ch · Forced"; may be empty.
  QString details() const;

  /// As FilmRecord has it.
  std::string choice() const;

  friend bool operator==(const MediaTrack&, const MediaTrack&) = default;
};

/// The tracks of a kind, from the engine's "track-list", in order; those without a usable id are
/// left out, and what is not a list gives none.
QList<MediaTrack> mediaTracks(const MpvValue& list, MediaTrack::Kind kind);

// Which track comes next when a person goes through them one after the other. Null where none does;
// the pointers live as long as the list.

/// After the last subtitle track come none, and after that the first.
const MediaTrack* nextSubtitle(const QList<MediaTrack>& tracks);

/// After the last audio track comes the first.
const MediaTrack* nextAudio(const QList<MediaTrack>& tracks);

}  // namespace tromelo
