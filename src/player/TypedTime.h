#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <optional>

namespace tromelo {

/// Where a person wants to go, by what they have typed: "1:02:03", "62:03", "90", "1h2m3s", and
/// with a sign how far from where playback is: "+30", "-1:00". Digits may be of any script. Times
/// are in seconds.
class TypedTime : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  struct Place {
    double seconds = 0;
    bool isFromHere = false;

    friend bool operator==(const Place&, const Place&) = default;
  };

  /// None for what makes no sense as a time.
  static std::optional<Place> parse(QStringView typed);

  /// The second to go to, inside of the film, which is `duration` long; 0 where that isn't known.
  /// NaN where nothing was understood.
  Q_INVOKABLE static double target(const QString& typed, double elapsed, double duration);

  /// What is to be said of that while it is typed.
  Q_INVOKABLE static QString hint(const QString& typed, double elapsed, double duration);
};

}  // namespace tromelo
