#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "engine/MpvProperty.h"
#include "engine/MpvValue.h"

namespace tromelo {

/// What the engine tells the model; each holds its own copy of everything. An `entry` is the
/// engine's own number of a file in its playlist, which no other file ever gets; 0 where there is
/// none.
namespace event {

struct Property {
  MpvProperty property;
  MpvValue value;
  friend bool operator==(const Property&, const Property&) = default;
};

struct EndFile {
  std::optional<std::string> error;  // none: the file ended by itself or was stopped
  std::int64_t entry = 0;
  bool lacksSoundDevice = false;  // the error is that its sound had nowhere to go
  friend bool operator==(const EndFile&, const EndFile&) = default;
};

struct CommandFailed {
  std::string error;
  friend bool operator==(const CommandFailed&, const CommandFailed&) = default;
};

/// A file that was asked for has its place in the playlist. Files are answered in the order in
/// which they were asked for.
struct FileQueued {
  std::int64_t entry = 0;
  friend bool operator==(FileQueued, FileQueued) = default;
};

struct StartFile {
  std::int64_t entry = 0;
  friend bool operator==(StartFile, StartFile) = default;
};

struct FileLoaded {
  friend bool operator==(FileLoaded, FileLoaded) = default;
};

/// After loading or seeking.
struct PlaybackRestart {
  friend bool operator==(PlaybackRestart, PlaybackRestart) = default;
};

/// Pictures of another form come from now on, or none. Between the loading of a file and its first
/// PlaybackRestart: it has a picture, which can be shown.
struct VideoReconfigured {
  friend bool operator==(VideoReconfigured, VideoReconfigured) = default;
};

/// Nothing starts until it is asked for.
struct Idle {
  friend bool operator==(Idle, Idle) = default;
};

struct Shutdown {
  friend bool operator==(Shutdown, Shutdown) = default;
};

/// The video decoder warned about hardware decoding.
struct HardwareDecodeError {
  friend bool operator==(HardwareDecodeError, HardwareDecodeError) = default;
};

/// The file's picture has nowhere to go; its sound, if it has any, plays on.
struct VideoOutputFailed {
  friend bool operator==(VideoOutputFailed, VideoOutputFailed) = default;
};

/// The graphics card has given up what the picture is drawn with.
struct VideoDeviceLost {
  friend bool operator==(VideoDeviceLost, VideoDeviceLost) = default;
};

/// The file's sound has nowhere to go; its picture, if it has one, plays on.
struct AudioOutputFailed {
  friend bool operator==(AudioOutputFailed, AudioOutputFailed) = default;
};

/// While the engine is quiet: for half a second no frame has been played, where frames were before.
struct FramesStopped {
  friend bool operator==(FramesStopped, FramesStopped) = default;
};

}  // namespace event

using MpvEvent =
    std::variant<event::Property, event::EndFile, event::CommandFailed, event::FileQueued,
                 event::StartFile, event::FileLoaded, event::PlaybackRestart,
                 event::VideoReconfigured, event::Idle, event::Shutdown, event::HardwareDecodeError,
                 event::VideoOutputFailed, event::VideoDeviceLost, event::AudioOutputFailed,
                 event::FramesStopped>;

}  // namespace tromelo
