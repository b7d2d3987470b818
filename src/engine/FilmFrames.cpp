#include "engine/FilmFrames.h"

#include <algorithm>
#include <cmath>
#include <format>
#include <limits>
#include <string_view>
#include <utility>

#include "engine/MpvClientApi.h"
#include "engine/MpvOptions.h"
#include "engine/MpvRequest.h"

namespace tromelo {

namespace {

constexpr std::uint64_t kReply = 1;
constexpr double kNear = 0.1;         // seconds: no other key frame is looked for
constexpr double kJustAfter = 0.002;  // seconds: what a container's own clock may round away

const MpvOption kOptions[] = {
    {"vo", "null"},
    {"ao", "null"},
    {"aid", "no"},
    {"sid", "no"},
    {"audio-display", "no"},
    {"idle", "yes"},
    {"pause", "yes"},
    {"keep-open", "yes"},
    {"untimed", "yes"},  // a single frame is enough to show it
    {"hr-seek", "no"},
    // Cheap decoding: nobody sees at this size what is left out.
    {"hwdec", "no"},
    {"vd-lavc-threads", "1"},
    {"vd-lavc-skiploopfilter", "all"},
    {"vd-lavc-fast", "yes"},
    {"cache", "no"},
    {"demuxer-readahead-secs", "0"},
    {"demuxer-max-bytes", "64MiB"},
    {"demuxer-max-back-bytes", "0"},
    // Nothing but this file, whatever it says, and nothing of the person's.
    {"config", "no"},
    {"access-references", "no"},
    {"autoload-files", "no"},
    {"demuxer-lavf-o", "protocol_whitelist=none"},
    {"ordered-chapters", "no"},
    {"resume-playback", "no"},
    {"load-scripts", "no"},
    {"ytdl", "no", true},
    {"osc", "no", true},
    {"osd-level", "0"},
    {"terminal", "no"},
    {"input-default-bindings", "no"},
};

/// Made small before anything else is done with it, and never larger. Its colours are named as if
/// they were of standard range, so that the engine leaves them alone.
std::string filters(QSize room) {
  const auto side = [](const char* own, int width, int height) {
    return std::format("max(2,round({0}*min(1,min({1}/(iw*if(gt(sar,0),sar,1)),{2}/ih))))", own,
                       width, height);
  };
  return std::format(
      "lavfi=[scale=w='{}':h='{}':flags=bilinear,setsar=1],format:primaries=bt.709:gamma=srgb",
      side("iw*if(gt(sar,0),sar,1)", room.width(), room.height()),
      side("ih", room.width(), room.height()));
}

const mpv_node* entryOf(const mpv_node& map, std::string_view key) {
  if (map.format != MPV_FORMAT_NODE_MAP) return nullptr;
  for (int i = 0; i < map.u.list->num; ++i)
    if (map.u.list->keys[i] == key) return &map.u.list->values[i];
  return nullptr;
}

std::int64_t integerOf(const mpv_node& map, std::string_view key) {
  const mpv_node* found = entryOf(map, key);
  return found && found->format == MPV_FORMAT_INT64 ? found->u.int64 : 0;
}

std::optional<FilmFrame> frameOf(const mpv_node& shot) {
  const mpv_node* data = entryOf(shot, "data");
  const mpv_node* format = entryOf(shot, "format");
  if (!data || data->format != MPV_FORMAT_BYTE_ARRAY || !format ||
      format->format != MPV_FORMAT_STRING || format->u.string != std::string_view("bgr0"))
    return {};
  FilmFrame frame;
  frame.size =
      QSize(static_cast<int>(integerOf(shot, "w")), static_cast<int>(integerOf(shot, "h")));
  frame.stride = integerOf(shot, "stride");
  const auto bytes = static_cast<qsizetype>(data->u.ba->size);
  if (frame.size.isEmpty() || frame.stride < 4 * frame.size.width() ||
      bytes < frame.stride * frame.size.height())
    return {};
  frame.pixels = QByteArray(static_cast<const char*>(data->u.ba->data), bytes);
  return frame;
}

}  // namespace

FilmFrames::FilmFrames(const MpvClientApi& api) : api_(std::make_unique<const MpvClientApi>(api)) {}

FilmFrames::~FilmFrames() {
  if (handle_) api_->terminateDestroy(handle_);
}

bool FilmFrames::start() {
  if (handle_) return true;
  handle_ = api_->create();
  if (!handle_) return false;
  bool isReady = true;
  const auto set = [&](const MpvOption& option) {
    const int code = api_->setOptionString(handle_, option.name.c_str(), option.value.c_str());
    isReady &= code >= 0 || (code == MPV_ERROR_OPTION_NOT_FOUND && option.mayBeUnknown);
  };
  std::ranges::for_each(kOptions, set);
  std::ranges::for_each(plainOptions(), set);
  if (isReady && api_->initialize(handle_) >= 0) return true;
  api_->terminateDestroy(std::exchange(handle_, nullptr));
  return false;
}

std::optional<FilmFrame> FilmFrames::at(const std::string& path, QSize room, double seconds) {
  if (!start() || !std::isfinite(seconds)) return {};
  seconds = std::max(seconds, 0.0);
  if (path != path_) nextKeyFrame_.clear();
  const auto known = knownKeyFrame(seconds);
  const double target = known ? *known + kJustAfter : seconds;
  // Once it has come to a film's end the engine no longer tells when a seek is done.
  const bool isOpen = path == path_ && room == room_ && isSeekable_ && !isAtEnd_;
  if (!(isOpen ? seek(target, "absolute+keyframes") : open(path, room, target))) {
    path_.clear();
    return {};
  }
  auto before = frame();
  if (!before || known || seconds - before->seconds < kNear) return before;
  if (!isSeekable_) return {};
  auto after = nextAfter(*before, seconds);
  const bool isAfterNearer = after && after->seconds - seconds < seconds - before->seconds;
  return isAfterNearer ? after : before;
}

double FilmFrames::duration() { return path_.empty() ? 0 : number("duration").value_or(0); }

bool FilmFrames::open(const std::string& path, QSize room, double seconds) {
  path_ = path;
  room_ = room;
  entry_ = 0;
  isUnderway_ = false;
  state_ = State::waiting;
  if (!command({"vf", "set", filters(room)}) ||
      !command({"loadfile", path, "replace", "-1", std::format("start={:.3f}", seconds)}) ||
      !waitForFrame())
    return false;
  isSeekable_ = text("seekable") == "yes";
  isAtEnd_ = text("eof-reached") == "yes";
  return true;
}

bool FilmFrames::seek(double seconds, const char* how) {
  isUnderway_ = false;
  state_ = State::waiting;
  if (!command({"seek", std::format("{:.3f}", seconds), how}) || !waitForFrame()) return false;
  isAtEnd_ = text("eof-reached") == "yes";
  return true;
}

/// The frame of the key frame after this one, and behind the moment.
std::optional<FilmFrame> FilmFrames::nextAfter(const FilmFrame& frame, double seconds) {
  if (!seek(seconds - frame.seconds, "relative+keyframes")) return {};
  auto found = isAtEnd_ ? std::nullopt : this->frame();
  if (!isAtEnd_ && (!found || found->seconds <= seconds)) return {};
  nextKeyFrame_[frame.seconds] = found ? found->seconds : std::numeric_limits<double>::infinity();
  return found;
}

/// Where the two on either side of the moment are known, the nearer one.
std::optional<double> FilmFrames::knownKeyFrame(double seconds) const {
  auto next = nextKeyFrame_.upper_bound(seconds);
  if (next == nextKeyFrame_.begin()) return {};
  const auto& [before, after] = *--next;
  if (seconds > after) return {};
  return after - seconds < seconds - before ? after : before;
}

std::optional<FilmFrame> FilmFrames::frame() {
  const auto seconds = number("time-pos");
  const std::string transfer = text("video-params/gamma");
  // Only the engine's own renderer can bring these colours to any others.
  if (!seconds || text("video-params/colormatrix") == "dolbyvision") return {};
  const char* arguments[] = {"screenshot-raw", "video", nullptr};
  const mpv_event* answer = reply(api_->commandAsync(handle_, kReply, arguments));
  if (!answer) return {};
  auto frame = frameOf(static_cast<const mpv_event_command*>(answer->data)->result);
  if (!frame) return {};
  frame->seconds = *seconds;
  frame->transfer = transfer;
  return frame;
}

bool FilmFrames::waitForFrame() {
  while (state_ == State::waiting) note(*api_->waitEvent(handle_, -1));
  return state_ == State::shown;
}

bool FilmFrames::command(const std::vector<std::string>& arguments) {
  return reply(api_->commandAsync(handle_, kReply, mpvWords(arguments).data()));
}

/// Null where the engine refuses it. Good until the next event is waited for.
const mpv_event* FilmFrames::reply(int sent) {
  if (sent < 0) return nullptr;
  while (true) {
    const mpv_event* event = api_->waitEvent(handle_, -1);
    if (event->reply_userdata == kReply) return event->error < 0 ? nullptr : event;
    note(*event);
  }
}

void FilmFrames::note(const mpv_event& event) {
  switch (event.event_id) {
    case MPV_EVENT_START_FILE:
      entry_ = static_cast<const mpv_event_start_file*>(event.data)->playlist_entry_id;
      isUnderway_ = true;
      break;
    case MPV_EVENT_SEEK:
      isUnderway_ = entry_ != 0;
      break;
    case MPV_EVENT_PLAYBACK_RESTART:
      if (isUnderway_) state_ = State::shown;
      break;
    case MPV_EVENT_END_FILE:
      // The film before it ends too.
      if (static_cast<const mpv_event_end_file*>(event.data)->playlist_entry_id == entry_)
        state_ = State::ended;
      break;
    case MPV_EVENT_SHUTDOWN:
      state_ = State::ended;
      break;
    default:
      break;
  }
}

std::optional<double> FilmFrames::number(const char* property) {
  const mpv_event* answer =
      reply(api_->getPropertyAsync(handle_, kReply, property, MPV_FORMAT_DOUBLE));
  if (!answer) return {};
  const double value =
      *static_cast<double*>(static_cast<const mpv_event_property*>(answer->data)->data);
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::string FilmFrames::text(const char* property) {
  const mpv_event* answer =
      reply(api_->getPropertyAsync(handle_, kReply, property, MPV_FORMAT_STRING));
  if (!answer) return {};
  return *static_cast<char**>(static_cast<const mpv_event_property*>(answer->data)->data);
}

}  // namespace tromelo
