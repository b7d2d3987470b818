#pragma once

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QSize>
#include <memory>
#include <optional>
#include <string>

#include "pictures/PictureProcess.h"
#include "platform/Background.h"

namespace tromelo {

class PictureFiles;

/// Pictures of the film that plays: from memory, from the disk, or from the process that makes
/// them. Main thread only; nothing here waits.
class PictureSource : public QObject {
  Q_OBJECT

 public:
  struct Parts {
    PictureProcess::Program maker;
    QString folder;  // of the pictures on the disk; is made if it is missing
    Clock& clock;    // outlives it
  };

  explicit PictureSource(Parts parts, QObject* parent = nullptr);
  ~PictureSource() override;

  /// The film from now on, by its absolute path, and its length in seconds. An empty path: there is
  /// none that has pictures.
  void setFilm(const std::string& path, double duration);

  /// Whether new pictures are kept on the disk.
  void setKeepsOnDisk(bool keeps) { keepsOnDisk_ = keeps; }

  /// Asks for a picture of about this moment, to fit `room`, which is in pixels. Of several
  /// requests only the newest is answered, besides one that is being worked on already.
  void ask(double seconds, QSize room);
  /// Of all films, also those on the disk.
  void forgetAll();
  /// Nothing is wanted any more.
  void stopAsking() { wanted_.reset(); }

  /// The film has ended the process twice, or kept it for too long: no more is asked of it.
  bool hasGivenUp() const { return failures_.value(film_) >= 2; }

 Q_SIGNALS:
  /// May come at once, from ask().
  void arrived(const QImage& picture);
  /// Those of the film before are of no use.
  void filmChanged();

 private:
  /// Which picture it is: moments that are nearer to each other than a pointer can tell share one.
  struct Moment {
    qint64 milliseconds;
    QSize room;
  };

  Moment momentOf(double seconds, QSize room) const;
  QString nameOf(const Moment& moment) const;
  void identify();
  void goOn();
  void lookOnDisk(const Moment& moment);
  void make(const Moment& moment);
  void take(const Moment& moment, const QImage& picture);
  void keep(const QString& name, const QImage& picture);

  const Parts parts_;
  const std::shared_ptr<PictureFiles> files_;  // threads that wait for a disk share it
  PictureProcess process_;
  Background disk_;
  QCache<QString, QImage> memory_;   // by the picture's name; costs are bytes
  QHash<QByteArray, int> failures_;  // of the process, by the film's path
  QByteArray film_;                  // its path
  double duration_ = 0;
  QByteArray identity_;  // of the film; empty until it is known
  quint32 turn_ = 0;     // of the film: what comes for an earlier one is let go
  quint32 requests_ = 0;
  std::optional<Moment> wanted_;
  bool isBusy_ = false;
  bool keepsOnDisk_ = true;
};

}  // namespace tromelo
