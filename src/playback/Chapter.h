#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <optional>

namespace tromelo {

class MpvValue;

/// A named place in the current file.
class Chapter {
  Q_GADGET
  Q_PROPERTY(qint64 id MEMBER id CONSTANT)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(double time MEMBER time CONSTANT)

 public:
  qint64 id = 0;  // position in the list, from 0
  QString title;
  double time = 0;  // seconds from the start of the file

  friend bool operator==(const Chapter&, const Chapter&) = default;
};

/// From the engine's "chapter-list"; what is not a list gives none.
QList<Chapter> chapterList(const MpvValue& list);

/// The title of the chapter that a moment is in; empty where there is none.
QString chapterTitleAt(const QList<Chapter>& chapters, double seconds);

/// The position of the chapter that is `steps` away from the `current` one at `elapsed` seconds;
/// none where there is no such chapter. A step back goes to the start of the current chapter first,
/// unless that has only just begun.
std::optional<int> steppedChapter(const QList<Chapter>& chapters, std::optional<int> current,
                                  double elapsed, int steps);

}  // namespace tromelo
