#include "overlay/ControlBarValues.h"

#include <algorithm>

#include "overlay/SliderTravel.h"
#include "playback/Chapter.h"
#include "player/PlayerFormats.h"

namespace tromelo {

QString volumeSymbol(double volume, bool isMuted) {
  if (isMuted || volume == 0) return QStringLiteral("speaker.slash.fill");
  if (volume < 34) return QStringLiteral("speaker.wave.1.fill");
  if (volume < 67) return QStringLiteral("speaker.wave.2.fill");
  return QStringLiteral("speaker.wave.3.fill");
}

QString remainingText(double duration, double shown) {
  return u'-' + formatClock(std::max(duration - shown, 0.0));
}

QList<double> chapterMarks(const QList<Chapter>& chapters, double duration, double width) {
  QList<double> marks;
  if (!(duration > 0)) return marks;
  for (qsizetype i = 1; i < chapters.size(); ++i)
    marks.append(sliderPlace(chapters[i].time / duration, width));
  return marks;
}

QString rangeTag(DynamicRange::Kind range) {
  switch (range) {
    case DynamicRange::Kind::sdr:
      return {};
    case DynamicRange::Kind::hdr10:
      return QStringLiteral("HDR10");
    case DynamicRange::Kind::hlg:
      return QStringLiteral("HLG");
    case DynamicRange::Kind::dolbyVision:
      return QStringLiteral("DOLBY VISION");
  }
  return {};
}

QString chapterTitle(const QList<Chapter>& chapters, int position) {
  return position >= 0 && position < chapters.size() ? chapters[position].title : QString();
}

}  // namespace tromelo
