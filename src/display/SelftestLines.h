#pragma once

#include <QByteArray>
#include <QStringList>
#include <cstdint>

#include "display/Frame.h"

namespace tromelo {

// The parts of a selftest. Each asks what it reports on, at the time of the call.

QStringList hostLines();
QStringList eglLines();
QStringList vulkanLines();
/// There is something for the engine to draw with.
bool hasVulkanDevice();
/// What a client of the display at `socketPath` is told.
QStringList displayLines(const QByteArray& socketPath);
QString frameLine(const Frame& frame);
/// What becomes of a frame in a scene that is drawn with OpenGL: a buffer of the GPU's is imported.
QString importLine(const Frame& frame);

QString fourccText(std::uint32_t fourcc);
QString modifierText(std::uint64_t modifier);

}  // namespace tromelo
