#pragma once

#include <QImage>
#include <string>

namespace tromelo {

/// Brings a picture whose values stand for more light than a screen of standard range has ("pq",
/// "hlg": the engine's names) to that range, highlights pressed together; leaves others as they
/// are. `picture` is of QImage::Format_RGB32.
void bringToStandardRange(QImage& picture, const std::string& transfer);

}  // namespace tromelo
