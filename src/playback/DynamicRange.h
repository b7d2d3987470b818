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
  Q_PROPERTY(QString tag READ tag CONSTANT)
  Q_PROPERTY(bool isHigh READ isHigh CONSTANT)

 public:
  enum class Kind { sdr, hdr10, hlg, dolbyVision };
  Q_ENUM(Kind)

  Kind kind = Kind::sdr;
  std::optional<qint64> profile;  // of Dolby Vision, where the file tells it

  /// For people.
  QString label() const;
  /// The same in a word; empty where there is nothing special about the signal.
  QString tag() const;
  /// More than an ordinary screen can show.
  bool isHigh() const { return kind != Kind::sdr; }

  friend bool operator==(const DynamicRange&, const DynamicRange&) = default;
};

/// Of the video that the engine describes; Dolby Vision goes before what it is built on.
DynamicRange dynamicRangeOf(const FileFacts& facts);

}  // namespace tromelo
