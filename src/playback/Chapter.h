#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>

namespace tromelo {

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

}  // namespace tromelo
