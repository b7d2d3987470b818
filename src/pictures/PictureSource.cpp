#include "pictures/PictureSource.h"

#include <algorithm>
#include <cmath>
#include <thread>
#include <utility>

#include "films/FilmIdentity.h"
#include "pictures/PictureFiles.h"

namespace tromelo {

namespace {

constexpr int kMemoryLimit = 48 * 1024 * 1024;  // bytes
constexpr double kMostOfOneFilm = 600;          // pictures: no slider is longer in points
constexpr double kNearest = 0.5;                // seconds between two of them, at least

}  // namespace

PictureSource::PictureSource(Parts parts, QObject* parent)
    : QObject(parent),
      parts_(std::move(parts)),
      files_(std::make_shared<PictureFiles>(parts_.folder)),
      process_(parts_.maker, parts_.clock),
      memory_(kMemoryLimit) {}

/// What a thread still does with pictures needs Qt, which ends with the program.
PictureSource::~PictureSource() { files_->close(); }

void PictureSource::setFilm(const std::string& path, double duration) {
  duration_ = duration;
  const auto film = QByteArray::fromStdString(path);
  if (film_ == film) return;
  film_ = film;
  identity_.clear();
  memory_.clear();
  wanted_.reset();
  ++turn_;
  // The film before may be the one that takes forever, and who is done with films wants none of
  // them held open.
  if (std::exchange(isBusy_, false) || film_.isEmpty()) process_.end();
  Q_EMIT filmChanged();
}

void PictureSource::ask(double seconds, QSize room) {
  if (film_.isEmpty() || hasGivenUp() || room.isEmpty() || !(duration_ > 0)) return;
  const Moment moment = momentOf(seconds, room);
  if (const QImage* known = memory_.object(nameOf(moment))) {
    wanted_.reset();
    // An empty one says that there is none.
    if (!known->isNull()) Q_EMIT arrived(*known);
    return;
  }
  wanted_ = moment;
  goOn();
}

PictureSource::Moment PictureSource::momentOf(double seconds, QSize room) const {
  const double step = std::max(kNearest, duration_ / kMostOfOneFilm);
  const double nearest = step * std::round(std::clamp(seconds, 0.0, duration_) / step);
  return {std::llround(1000 * std::min(nearest, duration_)), room};
}

QString PictureSource::nameOf(const Moment& moment) const {
  return QStringLiteral("%1x%2-%3")
      .arg(moment.room.width())
      .arg(moment.room.height())
      .arg(moment.milliseconds);
}

void PictureSource::goOn() {
  if (isBusy_ || !wanted_ || hasGivenUp()) return;
  const Moment moment = *std::exchange(wanted_, std::nullopt);
  isBusy_ = true;
  if (identity_.isEmpty()) {
    identify();
    make(moment);
  } else {
    lookOnDisk(moment);
  }
}

/// Beside the first picture, which is there sooner.
void PictureSource::identify() {
  disk_.run([path = film_.toStdString()] { return filmIdentity(path); },
            [this, turn = turn_](const std::optional<FilmIdentity>& found) {
              if (found && turn == turn_) identity_ = found->text();
            });
}

void PictureSource::lookOnDisk(const Moment& moment) {
  disk_.run([files = files_, name = QString::fromLatin1(identity_) + u'/' +
                                    nameOf(moment)] { return files->read(name); },
            [this, moment, turn = turn_](const QImage& found) {
              if (turn != turn_) return;
              if (found.isNull()) return make(moment);
              isBusy_ = false;
              take(moment, found);
              goOn();
            });
}

void PictureSource::make(const Moment& moment) {
  const PictureRequest request{++requests_, double(moment.milliseconds) / 1000, moment.room,
                               film_.toStdString()};
  process_.ask(request, [this, moment](const PictureProcess::Outcome& outcome) {
    isBusy_ = false;
    if (outcome.hasFailed) {
      ++failures_[film_];
    } else {
      take(moment, outcome.picture);
      keep(nameOf(moment), outcome.picture);
    }
    goOn();
  });
}

void PictureSource::take(const Moment& moment, const QImage& picture) {
  memory_.insert(nameOf(moment), new QImage(picture),  // the cache's
                 std::max(1, static_cast<int>(picture.sizeInBytes())));
  if (!picture.isNull()) Q_EMIT arrived(picture);
}

void PictureSource::keep(const QString& name, const QImage& picture) {
  if (!keepsOnDisk_ || identity_.isEmpty() || picture.isNull()) return;
  std::thread([files = files_, path = QString::fromLatin1(identity_) + u'/' + name, picture] {
    files->write(path, picture);
  }).detach();
}

void PictureSource::forgetAll() {
  memory_.clear();
  std::thread([files = files_] { files->removeAll(); }).detach();
}

}  // namespace tromelo
