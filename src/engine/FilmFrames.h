#pragma once

#include <QByteArray>
#include <QSize>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct mpv_event;
struct mpv_handle;
struct mpv_node;

namespace tromelo {

struct MpvClientApi;

/// One frame of a film, upright, with square pixels, and brought to RGB as it is coded: `transfer`
/// is the engine's name for how its values stand for light.
struct FilmFrame {
  double seconds = 0;  // where in the film it is
  QSize size;
  qsizetype stride = 0;  // bytes from one line to the next
  QByteArray pixels;     // blue, green, red and nothing, eight bits each
  std::string transfer;
};

/// A libmpv of its own for frames of films without playing them: it decodes single key frames, in
/// software and at low cost, and reads nothing but the film's own file. It waits for the engine,
/// for as long as that takes: it is for a process that does nothing else, and that another one
/// ends.
class FilmFrames {
 public:
  explicit FilmFrames(const MpvClientApi& api);
  ~FilmFrames();
  FilmFrames(const FilmFrames&) = delete;
  FilmFrames& operator=(const FilmFrames&) = delete;

  /// The key frame that is nearest to the moment, so small that it fits `room`, which an unusual
  /// rotation of the film turns. None where there is no film with a picture. The film stays open.
  std::optional<FilmFrame> at(const std::string& path, QSize room, double seconds);

  /// Of the film that is open, in seconds; 0 where it isn't known.
  double duration();

 private:
  enum class State { waiting, shown, ended };

  bool start();
  bool open(const std::string& path, QSize room, double seconds);
  bool seek(double seconds, const char* how);
  std::optional<FilmFrame> nextAfter(const FilmFrame& frame, double seconds);
  std::optional<double> knownKeyFrame(double seconds) const;
  std::optional<FilmFrame> frame();
  bool waitForFrame();
  bool command(const std::vector<std::string>& arguments);
  const mpv_event* reply(int sent);
  void note(const mpv_event& event);
  std::optional<double> number(const char* property);
  std::string text(const char* property);

  std::unique_ptr<const MpvClientApi> api_;
  mpv_handle* handle_ = nullptr;
  State state_ = State::ended;
  bool isUnderway_ = false;  // what was asked for last
  std::int64_t entry_ = 0;   // the engine's number for what it opens; 0 until it has told
  std::string path_;
  QSize room_;
  bool isSeekable_ = false;
  bool isAtEnd_ = false;
  std::map<double, double> nextKeyFrame_;  // after a key frame; never, after the last
};

}  // namespace tromelo
