#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>

namespace tromelo {

/// A time after which the player's controls may hide, as it is offered.
class AutoHideChoice {
  Q_GADGET
  Q_PROPERTY(QString label MEMBER label CONSTANT)
  Q_PROPERTY(double seconds MEMBER seconds CONSTANT)

 public:
  QString label;
  double seconds = 0;  // 0 is never

  friend bool operator==(const AutoHideChoice&, const AutoHideChoice&) = default;
};

}  // namespace tromelo
