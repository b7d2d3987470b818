#include "platform/VideoTypes.h"

#include <QMimeDatabase>

namespace tromelo {

QStringList openedMimeTypes() {
  return QStringLiteral(TROMELO_MIME_TYPES).split(u' ', Qt::SkipEmptyParts);
}

QSet<QString> videoSuffixes() {
  const QMimeDatabase types;
  QSet<QString> suffixes;
  for (const QString& name : openedMimeTypes()) {
    if (name.endsWith(QLatin1String("mpegurl"))) continue;  // lists of them
    for (const QString& suffix : types.mimeTypeForName(name).suffixes())
      suffixes.insert(suffix.toLower());
  }
  return suffixes;
}

}  // namespace tromelo
