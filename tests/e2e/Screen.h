#pragma once

#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <functional>

namespace tromelo::testing {

/// The virtual display that the tests run on, as a person sees and touches it.
namespace screen {

bool isX11();

/// What it shows now; the pointer only on X11.
QImage shot(bool withPointer = false);
/// X11, while nothing else changes.
bool showsPointer();
/// Waits until the shot satisfies `holds`; the last one is saved under `name` in the folder of
/// shots either way.
[[nodiscard]] bool waitForShot(const QString& name,
                               const std::function<bool(const QImage&)>& holds);

/// Something light lies on what is mostly dark there, as text does on a surface of ours.
bool isRead(const QImage& image, QRect place);

/// X11: keys and the window manager. `keys` as xdotool names them.
void press(const QString& keys);
QString run(const QString& program, const QStringList& arguments);
/// X11: the visible window of a process with this title, by its id; empty without one.
QString windowOf(qint64 processId, const QString& title);
QRect geometryOf(const QString& windowId);

/// X11: the person's hand. Places are on the screen, buttons as X11 numbers them.
void movePointer(QPoint place);
void pressButton(int button = 1);
void releaseButton(int button = 1);
void click(QPoint place, int times = 1);
/// Presses at the first place, goes through the others and lets go at the last.
void dragPointer(const QList<QPoint>& places);
}  // namespace screen

}  // namespace tromelo::testing
