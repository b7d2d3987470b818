#include "films/DecodingMarks.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QUuid>
#include <cstdio>
#include <utility>

namespace tromelo {

namespace {

// What each name begins with: a program's that runs, or has fallen; a film's that took one down,
// before and after the person was told.
constexpr const char* kRunning = "running-";
constexpr const char* kFell = "fell-";
constexpr const char* kTold = "told-";

struct Mark {
  QByteArray film;
  QByteArray stamp;
};

/// Empty where there is none that is whole.
Mark readMark(int file) {
  char text[512];
  const ssize_t length = pread(file, text, sizeof text, 0);
  const QList<QByteArray> lines = QByteArray(text, qMax(length, 0)).split('\n');
  return lines.size() == 3 ? Mark{lines[0], lines[1]} : Mark();
}

/// The lock goes with the file when that is renamed, and is let go of by the kernel.
UniqueFd lockedFile(const QString& path, int flags) {
  UniqueFd file(open(QFile::encodeName(path).constData(), flags | O_RDWR | O_CLOEXEC, 0600));
  if (file && flock(file.get(), LOCK_EX | LOCK_NB) != 0) file.reset();
  return file;
}

bool renameFile(const QString& from, const QString& to) {
  return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

}  // namespace

DecodingMarks::DecodingMarks(QString folder) : folder_(std::move(folder)) {}

QString DecodingMarks::place(const char* kind, const QByteArray& name) const {
  return folder_ + u'/' + QLatin1StringView(kind) + QString::fromLatin1(name);
}

/// What programs have left that are no more.
void DecodingMarks::collect() {
  for (const QString& name : QDir(folder_).entryList({kRunning + QStringLiteral("*")})) {
    const QString path = folder_ + u'/' + name;
    if (path == mark_) continue;
    const UniqueFd file = lockedFile(path, 0);
    if (!file) continue;
    const Mark left = readMark(file.get());
    if (left.film.isEmpty() || !renameFile(path, place(kFell, left.film))) QFile::remove(path);
  }
}

DecodingMarks::Advice DecodingMarks::advice(const QByteArray& film, const QByteArray& stamp) {
  collect();
  for (const char* kind : {kFell, kTold}) {
    const QString path = place(kind, film);
    const UniqueFd file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
    if (!file) continue;
    if (readMark(file.get()).stamp != stamp)
      QFile::remove(path);
    else if (kind == kTold)
      return Advice::software;
    else
      return renameFile(path, place(kTold, film)) ? Advice::softwareSince : Advice::software;
  }
  return Advice::hardware;
}

void DecodingMarks::begin(const QByteArray& film, const QByteArray& stamp) {
  QDir().mkpath(folder_);
  if (mark_.isEmpty())
    mark_ = place(kRunning, QByteArray::number(getpid()) + '-' +
                                QUuid::createUuid().toByteArray(QUuid::Id128));
  // Under another name until it is whole and locked.
  const QString draft = folder_ + QStringLiteral("/new-") + mark_.section(u'-', -1);
  UniqueFd file = lockedFile(draft, O_CREAT | O_TRUNC);
  const QByteArray text = film + '\n' + stamp + '\n';
  const bool isWhole = file && write(file.get(), text.constData(), text.size()) == text.size();
  if (isWhole && renameFile(draft, mark_)) {
    lock_ = std::move(file);
  } else {
    QFile::remove(draft);
    end();
  }
}

void DecodingMarks::end() {
  if (lock_) QFile::remove(mark_);
  lock_.reset();
}

void DecodingMarks::forgetAll() {
  for (const char* kind : {kFell, kTold})
    for (const QString& name : QDir(folder_).entryList({kind + QStringLiteral("*")}))
      QFile::remove(folder_ + u'/' + name);
}

}  // namespace tromelo
