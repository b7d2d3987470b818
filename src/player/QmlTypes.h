#pragma once

#include <QtQml/qqmlregistration.h>

#include "display/EngineWindowItem.h"
#include "display/PictureSurround.h"
#include "films/FilmMemory.h"
#include "playback/PlaybackModel.h"
#include "player/PlayerChrome.h"
#include "player/PlayerWindowController.h"

namespace tromelo {

/// Names for QML: the objects themselves know nothing of it.

struct EngineWindowItemForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::EngineWindowItem)
  QML_NAMED_ELEMENT(EngineWindowItem)
};

struct PictureSurroundForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::PictureSurround)
  QML_NAMED_ELEMENT(PictureSurround)
};

struct DynamicRangeForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::DynamicRange)
  QML_VALUE_TYPE(dynamicRange)
};

struct MediaTrackForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::MediaTrack)
  QML_VALUE_TYPE(mediaTrack)
};

struct AbLoopForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::AbLoop)
  QML_VALUE_TYPE(abLoop)
};

struct ChapterForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::Chapter)
  QML_VALUE_TYPE(chapter)
};

struct FilmBookmarkForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::FilmBookmark)
  QML_VALUE_TYPE(filmBookmark)
};

struct QueueItemForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::QueueItem)
  QML_VALUE_TYPE(queueItem)
};

struct PlaybackStateForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::PlaybackState)
  QML_ANONYMOUS
};

struct FilmMemoryForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::FilmMemory)
  QML_NAMED_ELEMENT(FilmMemory)
  QML_UNCREATABLE("The program has one.")
};

struct SubtitleCodingForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::SubtitleCoding)
  QML_NAMED_ELEMENT(SubtitleCoding)
  QML_UNCREATABLE("The model has one.")
};

struct SubtitleLinesForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::SubtitleLines)
  QML_NAMED_ELEMENT(SubtitleLines)
  QML_UNCREATABLE("The model has one.")
};

struct SoundDevicesForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::SoundDevices)
  QML_NAMED_ELEMENT(SoundDevices)
  QML_UNCREATABLE("The program has one.")
};

struct PlaybackModelForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::PlaybackModel)
  QML_NAMED_ELEMENT(PlaybackModel)
  QML_UNCREATABLE("The program has one.")
};

struct PlayerWindowControllerForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::PlayerWindowController)
  QML_NAMED_ELEMENT(PlayerWindowController)
  QML_UNCREATABLE("The program has one.")
};

struct PlayerChromeForQml {
  Q_GADGET
  QML_FOREIGN(tromelo::PlayerChrome)
  QML_NAMED_ELEMENT(PlayerChrome)
  QML_UNCREATABLE("The player window controller has one.")
};

}  // namespace tromelo
