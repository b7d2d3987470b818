#include "playback/FileOptions.h"

#include "platform/NumberText.h"

namespace tromelo {

std::string fileOptions(std::optional<double> start, bool decodesInSoftware) {
  std::string options;
  if (start) options = "start=" + numberText(*start);
  if (decodesInSoftware) options += options.empty() ? "hwdec=no" : ",hwdec=no";
  return options;
}

}  // namespace tromelo
