#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>
#include <functional>

namespace tromelo::testing {

/// The virtual display that the tests run on, as a person sees and touches it.
namespace screen {

bool isX11();

/// What it shows now.
QImage shot();
/// Waits until the shot satisfies `holds`; the last one is saved under `name` in the folder of
/// shots either way.
[[nodiscard]] bool waitForShot(const QString& name,
                               const std::function<bool(const QImage&)>& holds);

/// X11: keys and the window manager. `keys` as xdotool names them.
void press(const QString& keys);
QString run(const QString& program, const QStringList& arguments);
/// X11: the visible window of a process with this title, by its id; empty without one.
QString windowOf(qint64 processId, const QString& title);
QRect geometryOf(const QString& windowId);

}  // namespace screen

}  // namespace tromelo::testing
