#pragma once

#include <QByteArray>
#include <QString>

#include "platform/UniqueFd.h"

namespace tromelo {

/// Which film is decoded in hardware at present, for the next program to see where this one is
/// taken down by it: a file for each program that does, which is locked for as long as that lives.
/// What became known in this way is kept until the drivers change. Films are known by their content
/// (FilmIdentity::text()). Any one thread at a time; waits for the disk.
class DecodingMarks {
 public:
  /// `folder` need not exist.
  explicit DecodingMarks(QString folder);

  enum class Advice {
    hardware,
    software,      // it took a program down
    softwareSince  // the same, and nobody has been told
  };

  /// `stamp` is one line, and another one after an update of what decodes.
  Advice advice(const QByteArray& film, const QByteArray& stamp);
  /// From here on this film is the one, in place of any other.
  void begin(const QByteArray& film, const QByteArray& stamp);
  /// Without it, the mark stays behind.
  void end();
  /// What is known of all films.
  void forgetAll();

 private:
  void collect();
  QString place(const char* kind, const QByteArray& name) const;

  const QString folder_;
  QString mark_;   // this program's; empty: none
  UniqueFd lock_;  // of it
};

}  // namespace tromelo
