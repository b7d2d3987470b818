#pragma once

#include <QObject>
#include <QString>
#include <span>

namespace tromelo {

class PlaybackState;

/// A line of the info panel, which is left out where it has nothing to say. One without a value
/// divides those above it from those below.
struct InfoRow {
  const char* name;   // of the view's object
  const char* label;  // in English
  QString (*value)(const PlaybackState& state);
};

/// From top to bottom.
std::span<const InfoRow> infoRows();

/// In the person's language; empty for a divider.
QString infoLabel(const InfoRow& row);

}  // namespace tromelo
