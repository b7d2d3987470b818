#pragma once

#include <QString>
#include <QStringView>

namespace tromelo {

/// What people read of an event in the form that libavcodec gives all subtitles of text: nine
/// fields as in an ASS script, the last one the text with its marks. Rows are parted by LINE
/// SEPARATOR.
QString textOfEvent(QStringView event);

/// What searches compare: no case, no accents, and rows one after the other.
QString foldedText(const QString& text);

}  // namespace tromelo
