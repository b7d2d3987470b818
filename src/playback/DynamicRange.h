#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>
#include <optional>

namespace tromelo {

struct FileFacts;

/// What kind of signal the current video carries.
class DynamicRange {
  Q_GADGET
  Q_PROPERTY(Kind kind MEMBER kind CONSTANT)
  Q_PROPERTY(QString label READ label CONSTANT)

 public:
  enum class Kind { sdr, hdr10, hlg, dolbyVision };
  Q_ENUM(Kind)

  Kind kind = Kind::sdr;
  std::optional<qint64> profile;  // of Dolby Vision, where the file tells it

  /// For people.
  QString label() const;

  friend bool operator==(const DynamicRange&, const DynamicRange&) = default;
};

/// Of the video that the engine describes; Dolby Vision goes before what it is built on.
DynamicRange dynamicRangeOf(const FileFacts& facts);

}  // namespace tromelo
