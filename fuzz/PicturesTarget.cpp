#include "Targets.h"
#include "pictures/PictureMessage.h"

namespace tromelo::fuzz {

/// What comes from the process that makes pictures and, line by line, what it is asked for.
void pictures(Input input) {
  QByteArray received(input.rest());
  while (!received.isEmpty()) {
    const auto before = received.size();
    const auto answer = takePictureAnswer(received, {64, 64});
    if (!std::holds_alternative<PictureAnswer>(answer)) break;
    check(received.size() < before);
  }
  while (!input.isEmpty()) {
    const auto request = PictureRequest::parse(QByteArray(input.line()));
    if (!request) continue;
    const auto again = PictureRequest::parse(request->line().chopped(1));
    check(again && again->path == request->path && again->room == request->room);
  }
}

}  // namespace tromelo::fuzz
