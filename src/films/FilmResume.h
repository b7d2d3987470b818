#pragma once

#include <QString>
#include <optional>

#include "films/Film.h"

namespace tromelo {

/// Where a film goes on that was left there, in seconds; none where it begins afresh: it is short,
/// has hardly begun, or was seen to its end.
std::optional<double> resumePosition(const FilmProgress& progress);

/// "31 min left", "1 h 5 min left": what is still to be seen of a film, for people.
QString leftText(const FilmProgress& progress);

}  // namespace tromelo
