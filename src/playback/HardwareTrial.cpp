#include "playback/HardwareTrial.h"

#include <QCryptographicHash>
#include <chrono>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "films/DecodingMarks.h"
#include "platform/Awaited.h"
#include "platform/DriverStamp.h"
#include "platform/MainThread.h"
#include "platform/Timeline.h"

namespace tromelo {

namespace {

using Advice = DecodingMarks::Advice;
using Moment = std::chrono::steady_clock;

/// The engine has opened the file and waits.
constexpr std::chrono::milliseconds kPatienceOfTheEngine(200);
constexpr std::chrono::seconds kPatienceAtTheEnd(1);

}  // namespace

/// What is to be on the disk, and is brought there by threads that may be held up; the last one to
/// come through leaves what is wanted last.
class HardwareTrial::Disk : public std::enable_shared_from_this<Disk> {
 public:
  explicit Disk(const QString& folder) : marks_(folder) {}

  Film newFilm(const QByteArray& film, const std::string& engine) {
    const std::scoped_lock lock(wish_);
    return {++lastNumber_, film, QByteArray::fromStdString(engine)};
  }
  void want(const Film& film) {
    const std::scoped_lock lock(wish_);
    wanted_ = film;
  }
  /// Nothing where another one is wanted by now.
  void unwant(std::uint64_t number) {
    const std::scoped_lock lock(wish_);
    if (wanted_ && wanted_->number == number) wanted_.reset();
  }
  void unwantAny() {
    const std::scoped_lock lock(wish_);
    wanted_.reset();
  }

  /// On a thread of its own, which nothing waits for.
  void inBackground(std::function<void(Disk&)> work) {
    std::thread([disk = shared_from_this(), work = std::move(work)] {
      const std::scoped_lock lock(disk->turn_);
      work(*disk);
    }).detach();
  }
  // These in the background.
  Advice advise(const Film& film) {
    const Advice advice = marks_.advice(film.film, stamp(film));
    if (advice != Advice::hardware) unwant(film.number);
    settle();
    return advice;
  }
  void settle() {
    std::optional<Film> film;
    {
      const std::scoped_lock lock(wish_);
      film = wanted_;
    }
    if (std::exchange(there_, film ? film->number : 0) == (film ? film->number : 0)) return;
    film ? marks_.begin(film->film, stamp(*film)) : marks_.end();
  }
  void forgetAll() { marks_.forgetAll(); }

 private:
  QByteArray stamp(const Film& film) {
    if (drivers_.isEmpty()) drivers_ = driverStamp();
    return QCryptographicHash::hash(drivers_ + film.engine, QCryptographicHash::Sha256).toHex();
  }

  std::mutex wish_;  // held for a moment only
  std::uint64_t lastNumber_ = 0;
  std::optional<Film> wanted_;

  std::mutex turn_;  // for as long as the disk takes
  DecodingMarks marks_;
  QByteArray drivers_;
  std::uint64_t there_ = 0;  // whose mark
};

HardwareTrial::HardwareTrial(const QString& folder, std::function<void(bool)> fell)
    : fell_(std::move(fell)), disk_(std::make_shared<Disk>(folder)) {
  session_->trial = this;
}

HardwareTrial::~HardwareTrial() {
  session_->trial = nullptr;
  disk_->unwantAny();
  const auto isDone = std::make_shared<Awaited<bool>>();
  disk_->inBackground([isDone](Disk& disk) {
    disk.settle();
    isDone->put(true);
  });
  isDone->wait(Moment::now() + kPatienceAtTheEnd);
}

FilmKeeper::Preparation HardwareTrial::preparation() {
  return [disk = disk_, session = session_](const OpenedFile& file, const QByteArray& identity) {
    Timeline::note("film known by its content");
    const Film film = disk->newFilm(identity, file.versions);
    disk->want(film);
    const auto advice = std::make_shared<Awaited<Advice>>();
    disk->inBackground([film, advice](Disk& there) { advice->put(there.advise(film)); });
    const Advice given =
        advice->wait(Moment::now() + kPatienceOfTheEngine).value_or(Advice::hardware);
    Timeline::note("film marked");
    const bool isSoftware = given != Advice::hardware;
    postToMainThread([=, entry = file.entry] {
      if (session->trial)
        session->trial->take(entry, film, isSoftware, given == Advice::softwareSince);
    });
    return isSoftware ? std::vector<PreloadHook::Wish>{fileOption("hwdec", "no")}
                      : std::vector<PreloadHook::Wish>();
  };
}

void HardwareTrial::started(std::int64_t entry) {
  entry_ = entry;
  film_ = {};
  isInHardware_ = false;
}

void HardwareTrial::take(std::int64_t entry, const Film& film, bool isSoftware, bool isNew) {
  // The engine has gone on to another one meanwhile.
  if (entry != entry_) return;
  film_ = film;
  isMarked_ = !isSoftware;
  if (isSoftware) fell_(isNew);
}

void HardwareTrial::decodes(bool inHardware) {
  isInHardware_ = inHardware;
  if (!film_.number || std::exchange(isMarked_, inHardware) == inHardware) return;
  inHardware ? disk_->want(film_) : disk_->unwant(film_.number);
  disk_->inBackground(&Disk::settle);
}

void HardwareTrial::played() {
  // Of a film without a picture the engine doesn't say.
  if (!isInHardware_) decodes(false);
}

void HardwareTrial::ended() {
  decodes(false);
  film_ = {};
}

void HardwareTrial::forgetAll() { disk_->inBackground(&Disk::forgetAll); }

}  // namespace tromelo
