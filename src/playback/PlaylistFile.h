#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>
#include <string>
#include <vector>

namespace tromelo {

/// By its name: M3U.
bool isPlaylistFile(const QUrl& file);

/// What files stand for once each list among them is replaced by what it names.
struct OpenedLists {
  /// Something that can't be played, by the name that people know it by.
  struct Skipped {
    enum class Reason { missing, elsewhere, unreadable } reason;
    QString name;

    friend bool operator==(const Skipped&, const Skipped&) = default;
  };

  QList<QUrl> files;
  QList<Skipped> skipped;  // in order

  /// What people are told; empty where nothing was skipped.
  QString sentence() const;
};

/// Reads lists, and lists in lists. A line names a file by its path, in UTF-8 or Latin-1, absolute
/// or from the list's folder, or by its address. However long, deep or circular they are, this
/// comes to an end; but it may take its time: not for the main thread. A stream that is cut into
/// files is no list but a video.
OpenedLists openLists(const QList<QUrl>& files);

/// A file of a list that is written.
struct PlaylistEntry {
  std::string path;
  QString title;
};

/// A list that stands in `folder`, in UTF-8: what lies in the folder or below is named from there,
/// so that the two can be moved together.
QByteArray playlistText(const std::vector<PlaylistEntry>& entries, const std::string& folder);

}  // namespace tromelo
