#include "playback/SubtitleExtensions.h"

namespace tromelo {

const QStringList& subtitleExtensions() {
  static const QStringList extensions{
      QStringLiteral("srt"), QStringLiteral("ass"), QStringLiteral("ssa"), QStringLiteral("vtt"),
      QStringLiteral("sub"), QStringLiteral("sup"), QStringLiteral("idx"), QStringLiteral("smi")};
  return extensions;
}

}  // namespace tromelo
