#pragma once

#include <QByteArray>
#include <QStringList>

#include "display/Frame.h"

namespace tromelo {

// The parts of a selftest. Each asks what it reports on, at the time of the call.

QStringList hostLines();
QStringList eglLines();
/// What a client of the display at `socketPath` is told.
QStringList displayLines(const QByteArray& socketPath);
QString frameLine(const Frame& frame);
/// What becomes of a frame in a scene that is drawn with OpenGL: a buffer of the GPU's is imported.
QString importLine(const Frame& frame);

}  // namespace tromelo
