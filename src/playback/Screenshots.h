#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <deque>
#include <functional>
#include <memory>
#include <string>

#include "platform/Background.h"

namespace tromelo {

class MpvEngine;

/// Pictures of the film that a person keeps. The engine makes them, one after the other, and other
/// threads see to the disk. Main thread only; nothing is told once this object is gone.
class Screenshots {
 public:
  enum class What {
    withSubtitles,  // both in the film's own size
    withoutSubtitles,
    asShown,  // as on the screen, in its size
  };

  struct Moment {
    QString film;        // its name
    double seconds = 0;  // of the film
    /// The film is HDR: its signal is kept, too, in a picture of its own.
    bool isHigh = false;
  };

  /// `folder` is made when it is needed.
  Screenshots(MpvEngine& engine, std::string folder);

  /// Called with the picture, or with none where it couldn't be kept.
  using Kept = std::function<void(const QUrl& picture)>;
  /// "Film – 1.02.03.png", and "Film – 1.02.03 HDR.png"; never in place of another.
  void keep(What what, const Moment& moment, const Kept& kept);

  /// Called with an SDR picture as PNG, or with nothing where there is none.
  using Made = std::function<void(const QByteArray& png)>;
  void make(What what, const Made& made);

 private:
  struct Job;

  void add(std::shared_ptr<Job> job);
  void begin();
  void shoot(const std::shared_ptr<Job>& job, const std::string& path,
             const std::function<void(bool succeeded)>& then);
  void shootSignal(const std::shared_ptr<Job>& job);
  void finish(const std::shared_ptr<Job>& job, bool hasPicture, bool hasSignal);

  MpvEngine& engine_;
  std::string folder_;
  std::deque<std::shared_ptr<Job>> jobs_;  // the first is being made
  Background disk_;
};

}  // namespace tromelo
