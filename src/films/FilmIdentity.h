#pragma once

#include <QByteArray>
#include <QtTypes>
#include <optional>
#include <string>

namespace tromelo {

/// What a file is known by, whatever it is called and wherever it lies: its length, and a hash of
/// its first and last 64 KiB. Copies share it.
struct FilmIdentity {
  qint64 size = 0;  // bytes
  QByteArray hash;  // SHA-256 of the two ends; of the whole file where it is shorter

  /// As short as a file's name may be, and of nothing but letters, digits and "-".
  QByteArray text() const { return QByteArray::number(size, 16) + '-' + hash.toHex(); }

  friend bool operator==(const FilmIdentity&, const FilmIdentity&) = default;
};

/// None for what is no regular file, is empty or can't be read. Waits for the disk or the network,
/// so it is never for the main thread.
std::optional<FilmIdentity> filmIdentity(const std::string& path);

}  // namespace tromelo
