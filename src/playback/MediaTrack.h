#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>
#include <optional>

namespace tromelo {

/// One track of the current file.
class MediaTrack {
  Q_GADGET
  Q_PROPERTY(qint64 id MEMBER id CONSTANT)
  Q_PROPERTY(Kind kind MEMBER kind CONSTANT)
  Q_PROPERTY(bool isSelected MEMBER isSelected CONSTANT)

 public:
  enum class Kind { video, audio, sub };
  Q_ENUM(Kind)

  qint64 id = 0;  // the engine's number, counted within the kind
  Kind kind = Kind::video;
  std::optional<QString> title;
  std::optional<QString> language;
  std::optional<QString> codec;
  std::optional<qint64> channels;
  bool isDefault = false;
  bool isForced = false;
  bool isExternal = false;
  bool isSelected = false;

  friend bool operator==(const MediaTrack&, const MediaTrack&) = default;
};

}  // namespace tromelo
