#pragma once

#include <QByteArray>
#include <string>

namespace tromelo {

/// Lets the content of a file decide how its characters are coded.
inline constexpr const char* kAutomaticCodepage = "auto";

/// Whether a file of text says itself how its characters are coded: as UTF-8, or in another form of
/// Unicode that it begins with the mark of.
bool isUnicode(const QByteArray& text);

/// In UTF-8, as the engine reads it: what says itself how it is coded stays as it is, whatever
/// `codepage` (a name of iconv's) says. What doesn't belong there is replaced.
QByteArray readableSubtitles(const QByteArray& text, const std::string& codepage);

}  // namespace tromelo
