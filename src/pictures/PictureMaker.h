#pragma once

#include <QImage>
#include <QSize>
#include <optional>
#include <string>

#include "engine/FilmFrames.h"

namespace tromelo {

/// A moment of a film as a screen of standard range shows it.
struct FilmPicture {
  double seconds = 0;  // of the frame
  QImage image;        // of QImage::Format_RGB32
};

/// Makes pictures of films. Waits: see FilmFrames.
class PictureMaker {
 public:
  explicit PictureMaker(const MpvClientApi& api) : frames_(api) {}

  /// None of what is no regular file, or has no picture.
  std::optional<FilmPicture> make(const std::string& path, QSize room, double seconds);

  /// Of the film of the last picture, in seconds; 0 where it isn't known.
  double duration() { return frames_.duration(); }

 private:
  FilmFrames frames_;
};

/// What the process does that PictureProcess starts: answers requests from standard input on
/// standard output, until there are no more. Gives the process's exit status.
int runPictureMaker();

}  // namespace tromelo
