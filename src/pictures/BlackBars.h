#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <variant>

namespace tromelo {

/// Why nothing is to be cut off.
enum class NoBars {
  none,     // there are no bars
  tooDark,  // to tell
  vary,     // the film's shape changes
  failed,   // the film can't be looked at
};

/// What is left of a picture without the bars round it; null where all of it is black.
QRect withoutBars(const QImage& picture);

/// The same of a film of which some scenes were looked at, each a part of `whole`; null for a dark
/// one.
std::variant<QRect, NoBars> withoutBars(const QList<QRect>& scenes, const QRect& whole);

}  // namespace tromelo
