#include "playback/FilmKeeper.h"

#include <algorithm>
#include <ranges>

#include "adjustments/FilmAdjustments.h"
#include "films/FilmResume.h"
#include "platform/Clock.h"
#include "platform/FilePath.h"
#include "platform/MainThread.h"
#include "platform/NumberText.h"

namespace tromelo {

namespace {

/// The engine has opened the file and waits.
constexpr std::chrono::milliseconds kPatience(300);

constexpr double kInterval = 5;  // seconds between two times that it is remembered

using Wishes = std::vector<PreloadHook::Wish>;

void wishTrack(Wishes& wishes, const std::string& choice, const char* option, const char* add) {
  if (choice.starts_with('/'))
    wishes.push_back(MpvCommand{.arguments = {add, choice, "cached"}});
  else if (!choice.empty())
    wishes.push_back(fileOption(option, choice));
}

void wishAdjustments(Wishes& wishes, const AdjustmentValues& forAll,
                     const AdjustmentValues& ofFilm) {
  for (const MpvPropertyWrite& write : engineWrites(forAll, ofFilm))
    wishes.push_back(fileOption(write.name, write.value));
}

void wishPlace(Wishes& wishes, const FilmRecord& record, std::optional<double> start) {
  wishes.push_back(fileOption("audio-delay", numberText(record.audioDelay)));
  wishes.push_back(fileOption("sub-delay", numberText(record.subtitleDelay)));
  if (start) wishes.push_back(fileOption("start", numberText(*start)));
  wishTrack(wishes, record.audio, "aid", "audio-add");
  wishTrack(wishes, record.subtitle, "sid", "sub-add");
}

/// As FilmRecord has it.
std::string choiceOf(const QList<MediaTrack>& tracks) {
  const auto selected = std::ranges::find_if(tracks, &MediaTrack::isSelected);
  return selected == tracks.end() ? "no" : selected->choice();
}

}  // namespace

MpvPropertyWrite fileOption(const std::string& option, std::string value) {
  return {"file-local-options/" + option, std::move(value)};
}

FilmKeeper::FilmKeeper(FilmMemory* memory, Clock& clock) : memory_(memory), clock_(clock) {
  session_->keeper = this;
}

FilmKeeper::~FilmKeeper() { session_->keeper = nullptr; }

PreloadHook::Prepare FilmKeeper::prepareFile(const Preparation& also) {
  if (!memory_) return {};
  return [memory = memory_, session = session_, also](const OpenedFile& file) {
    const auto known = memory->recall(file.path, file.duration, kPatience);
    Wishes wishes;
    const auto record = known ? known->record : std::nullopt;
    wishAdjustments(wishes, session->adjustmentsForAll(),
                    record ? record->adjustments : AdjustmentValues());
    if (!known) return wishes;
    const bool goesOn = record && session->resumes;
    const auto start =
        goesOn && !file.hasStart ? resumePosition({record->position, file.duration}) : std::nullopt;
    // Ahead of what the engine tells of the loaded file.
    postToMainThread([session, opened = Opened{file, *known, start}] {
      if (session->keeper) session->keeper->take(opened);
    });
    if (goesOn) wishPlace(wishes, *record, start);
    if (also) std::ranges::move(also(file, known->film.identity), std::back_inserter(wishes));
    return wishes;
  };
}

AdjustmentValues FilmKeeper::Session::adjustmentsForAll() {
  const std::scoped_lock lock(mutex);
  return forAll;
}

void FilmKeeper::setForAll(AdjustmentValues values) {
  const std::scoped_lock lock(session_->mutex);
  session_->forAll = std::move(values);
}

void FilmKeeper::adjusted(const AdjustmentValues& values) {
  next_.adjustments = values;
  keepSoon();
}

void FilmKeeper::started(std::int64_t entry) {
  entry_ = entry;
  film_.reset();
  kept_ = next_ = {};
  resumedAt_.reset();
  choosesAudio_ = choosesSubtitle_ = hasMoved_ = isDue_ = false;
}

void FilmKeeper::take(const Opened& opened) {
  // The engine has gone on to another one meanwhile.
  if (opened.file.entry != entry_) return;
  film_ = opened.known.film;
  path_ = absolutePath(opened.file.path);
  kept_ = next_ = opened.known.record.value_or(FilmRecord());
  resumedAt_ = opened.resumedAt;
  lastKept_ = clock_.now();
}

void FilmKeeper::tracksChanged(const QList<MediaTrack>& audio, const QList<MediaTrack>& subtitles) {
  if (audio.isEmpty() && subtitles.isEmpty()) return;
  if (choosesAudio_) next_.audio = choiceOf(audio);
  if (choosesSubtitle_) next_.subtitle = choiceOf(subtitles);
}

void FilmKeeper::moved(double position) {
  hasMoved_ = true;
  next_.position = position;
  if (isDue_ || clock_.now() - lastKept_ >= kInterval) keep();
}

void FilmKeeper::keep() {
  if (!film_ || !hasMoved_) return;
  isDue_ = false;
  lastKept_ = clock_.now();
  if (std::exchange(kept_, next_) != next_) memory_->remember(*film_, next_, path_);
}

}  // namespace tromelo
