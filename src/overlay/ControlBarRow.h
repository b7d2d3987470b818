#pragma once

#include <QMetaType>
#include <QObject>

namespace tromelo {

/// How the upper row of the control bar shares out its room: sound, transport, options. Lengths in
/// points.
class ControlBarRow {
  Q_GADGET
  Q_PROPERTY(double transportSpacing MEMBER transportSpacing CONSTANT)
  Q_PROPERTY(double optionsSpacing MEMBER optionsSpacing CONSTANT)
  Q_PROPERTY(double transportX MEMBER transportX CONSTANT)
  Q_PROPERTY(double volumeWidth MEMBER volumeWidth CONSTANT)

 public:
  double transportSpacing = 0;
  double optionsSpacing = 0;
  double transportX = 0;   // of its left end
  double volumeWidth = 0;  // of the slider; 0 where there is no room for one

  friend bool operator==(const ControlBarRow&, const ControlBarRow&) = default;
};

/// What stands in the row besides what always does.
struct ControlBarContent {
  bool hasQueue = false;     // previous and next
  bool hasChapters = false;  // the chapters' button
  double speedWidth = 0;     // of the speed button
};

/// All controls fit from 440 points on. The transport is in the middle where the options leave it
/// there; with less room it moves aside, then the gaps and the volume slider become smaller.
ControlBarRow controlBarRow(double room, const ControlBarContent& content);

}  // namespace tromelo
