#pragma once

#include <QFont>
#include <QImage>

#include "settings/PlayerPreferences.h"

namespace tromelo {

/// The text that stands for subtitles in a preview.
QString subtitleSampleText();

/// The sample's font, as large as subtitles are in a small picture; in points of 1/72 of an inch.
QFont subtitleSampleFont(const PlayerPreferences& style);

/// The sample in this style at the bottom of a picture: `size` in points, `scale` pixels for each.
/// Painted, since Qt Quick's effects draw nothing where the processor draws the scene.
QImage subtitlePicture(QSizeF size, double scale, const PlayerPreferences& style);

}  // namespace tromelo
