#include "playback/Screenshots.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "engine/MpvEngine.h"
#include "platform/FilePath.h"
#include "playback/ScreenshotFile.h"

namespace tromelo {

namespace fs = std::filesystem;

struct Screenshots::Job {
  What what;
  Moment moment;
  std::string folder;  // wanted, then made
  Kept kept;           // one of the two
  Made made;

  /// The engine writes under names that nobody sees; what is whole gets its own.
  std::string picture() const { return folder + "/.tromelo-" + std::to_string(getpid()) + ".png"; }
  std::string signal() const {
    return folder + "/.tromelo-" + std::to_string(getpid()) + "-hdr.png";
  }
};

namespace {

const char* engineName(Screenshots::What what) {
  switch (what) {
    case Screenshots::What::withSubtitles:
      return "subtitles";
    case Screenshots::What::withoutSubtitles:
      return "video";
    case Screenshots::What::asShown:
      return "window";
  }
  return "";
}

QByteArray contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return QByteArray::fromStdString({std::istreambuf_iterator<char>(file), {}});
}

/// Empty where it can't be made. Without one that is wanted, one that nobody else can look into.
std::string madeFolder(const std::string& wanted) {
  std::error_code error;
  if (!wanted.empty()) {
    fs::create_directories(wanted, error);
    return error ? std::string() : wanted;
  }
  std::string pattern = (fs::temp_directory_path(error) / "tromelo-XXXXXX").string();
  return mkdtemp(pattern.data()) ? pattern : std::string();
}

void removeFile(const std::string& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

}  // namespace

Screenshots::Screenshots(MpvEngine& engine, std::string folder)
    : engine_(engine), folder_(std::move(folder)) {}

void Screenshots::keep(What what, const Moment& moment, const Kept& kept) {
  add(std::make_shared<Job>(Job{what, moment, folder_, kept, {}}));
}

void Screenshots::make(What what, const Made& made) {
  add(std::make_shared<Job>(Job{what, {}, {}, {}, made}));
}

void Screenshots::add(std::shared_ptr<Job> job) {
  jobs_.push_back(std::move(job));
  if (jobs_.size() == 1) begin();
}

void Screenshots::begin() {
  const auto job = jobs_.front();
  disk_.run([wanted = job->folder] { return madeFolder(wanted); },
            [this, job](const std::string& folder) {
              job->folder = folder;
              if (folder.empty()) return finish(job, false, false);
              shoot(job, job->picture(), [this, job](bool succeeded) {
                const bool wantsSignal = job->moment.isHigh && job->what != What::asShown;
                succeeded&& wantsSignal ? shootSignal(job) : finish(job, succeeded, false);
              });
            });
}

void Screenshots::shoot(const std::shared_ptr<Job>& job, const std::string& path,
                        const std::function<void(bool)>& then) {
  engine_.command({"screenshot-to-file", path, engineName(job->what)},
                  [then](const auto& error) { then(!error); });
}

void Screenshots::shootSignal(const std::shared_ptr<Job>& job) {
  // The engine goes by the format that it would choose itself, not by this picture's: it leaves the
  // signal as it is for one that can hold HDR, and brings it to SDR for any other.
  engine_.setProperty("screenshot-format", "jxl");
  shoot(job, job->signal(), [this, job](bool succeeded) {
    engine_.setProperty("screenshot-format", "jpg");
    finish(job, true, succeeded);
  });
}

void Screenshots::finish(const std::shared_ptr<Job>& job, bool hasPicture, bool hasSignal) {
  const auto settle = [job, hasPicture, hasSignal]() -> std::pair<std::string, QByteArray> {
    std::pair<std::string, QByteArray> result;
    if (hasPicture && job->made) result.second = contentOf(job->picture());
    if (hasPicture && job->kept) {
      const std::string signal = hasSignal && holdsHdr(job->signal()) ? job->signal() : "";
      result.first = keepScreenshots(job->picture(), signal, job->folder,
                                     screenshotName(job->moment.film, job->moment.seconds));
    }
    if (job->folder.empty()) return result;
    removeFile(job->picture());
    removeFile(job->signal());
    if (job->made) removeFile(job->folder);
    return result;
  };
  disk_.run(settle, [this, job](const std::pair<std::string, QByteArray>& result) {
    jobs_.pop_front();
    if (!jobs_.empty()) begin();
    if (job->kept) job->kept(fileUrlFromPath(result.first));
    if (job->made) job->made(result.second);
  });
}

}  // namespace tromelo
