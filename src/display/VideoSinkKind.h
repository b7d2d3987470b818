#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "display/DmabufSupport.h"
#include "display/SyncTimeline.h"
#include "display/VideoSink.h"
#include "platform/PictureWay.h"

struct wl_display;

namespace tromelo {

class HostRelay;

/// Everything that the program knows of a kind of sink before there is one. The private display
/// announces what the kind takes, so that it is chosen first.
struct VideoSinkKind {
  QString name;  // for a report
  PictureWay way;
  QStringList report;  // a line for each thing that is told of the host
  /// A scene can draw with the picture, to blur it behind glass for example. Nothing above the sink
  /// may assume so.
  bool canBeSampled = false;

  std::vector<std::uint32_t> shmFormats;  // DRM FourCCs; AR24 and XR24 at least
  std::optional<DmabufSupport> dmabuf;    // none: the engine presents through shared memory

  /// On which the engine says when its GPU is done with a picture, and is told when nobody reads it
  /// any more; none: the kernel sees to that.
  std::shared_ptr<const SyncDevice> syncDevice = nullptr;

  /// Adds what else the sink serves, colour management for example, to a display that has no client
  /// yet. Display's thread, or the one that makes the display, before there is that. May be empty.
  std::function<void(wl_display*)> announceMore;

  /// Makes a sink for one engine window; see VideoSink. Main thread.
  std::function<std::shared_ptr<VideoSink>(QObject* receiver, VideoSink::Events events)> create;
};

/// What a kind may ask about when it looks whether this host has what it needs.
struct VideoSinkHost {
  /// "scene" for a person who doesn't want the host to show the pictures.
  QByteArray asked;
  /// Qt draws its scenes with OpenGL. Finding out takes a moment.
  std::function<bool()> drawsWithOpenGl;
  /// Outlives what is chosen. None: Qt's connection to the host is a direct one.
  HostRelay* relay = nullptr;
};

/// The best kind that this host can show. Main thread, after the application object and before the
/// private display.
VideoSinkKind chooseVideoSink(const VideoSinkHost& host);

}  // namespace tromelo
