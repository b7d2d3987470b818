#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <string>
#include <string_view>

namespace tromelo {

/// File URLs keep a path's bytes as they are on disk, percent-encoded, so that names that are not
/// UTF-8 survive. These functions are the only way between the two.

/// Absolute against the working directory, without "." and doubled slashes; ".." stays.
std::string absolutePath(std::string_view pathBytes);

/// The URL of an absolute or relative path (made absolute against the working directory).
QUrl fileUrlFromPath(std::string_view pathBytes);

/// The path's bytes; empty when `url` is no local file.
std::string pathFromFileUrl(const QUrl& url);

/// A URL as other programs write it: some leave bytes above ASCII as they are. A local file's comes
/// out as fileUrlFromPath() writes it.
QUrl urlFromEncoded(QByteArrayView text);

/// What an argument of a command line names: a path, or any URL. A path that isn't absolute is from
/// `folder` on, or from the working directory.
QUrl urlFromArgument(std::string_view argument, std::string_view folder = {});

/// A path as text that keeps its bytes, to be stored: the path itself where it is UTF-8, else its
/// file URL. A path never begins like one.
QString storedPath(std::string_view pathBytes);
std::string pathFromStored(const QString& text);

/// For people: undecodable bytes show as U+FFFD.
QString lastPathComponent(const QUrl& url);
QString lastPathComponentWithoutExtension(const QUrl& url);

/// "Movie.mkv" gives "Movie"; a leading dot begins no extension.
QString withoutLastPathExtension(const QString& name);

bool fileExists(std::string_view pathBytes);

}  // namespace tromelo
