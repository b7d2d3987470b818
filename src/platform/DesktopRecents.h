#pragma once

#include <QByteArray>
#include <QUrl>

namespace tromelo {

/// Puts a file on the desktop's own list of recently used ones, or takes it off, whoever has put it
/// there. That happens later, in the order of the calls, on a thread of its own: the list can be
/// long and its disk slow. A list that can't be read is left as it is.
void addToDesktopRecents(const QUrl& file);
void removeFromDesktopRecents(const QUrl& file);

/// The same at once, on the list at `listPath`; false when it can't be read or written.
bool addToRecentsList(const QByteArray& listPath, const QUrl& file);
bool removeFromRecentsList(const QByteArray& listPath, const QUrl& file);

}  // namespace tromelo
