#pragma once

#include <QString>
#include <span>
#include <string>

namespace tromelo {

/// What a desktop asks of its thumbnailers.
struct ThumbnailRequest {
  std::string path;  // absolute
  std::string output;
  int size = 256;  // pixels of the longest side
};

/// Writes a PNG of a third of the film, or of another place where it is black there. Gives the
/// process's exit status. It doesn't start anything of the desktop's, and a film that takes more
/// time or memory than a thumbnail is worth ends the process, which then has failed.
int writeThumbnail(const ThumbnailRequest& request);

/// The same with the arguments that follow the option on the command line: -s SIZE, then the film,
/// by its path or URL, and the picture's path.
int runThumbnailer(std::span<char* const> arguments);

}  // namespace tromelo
