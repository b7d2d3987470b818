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
/// It lets tests move the pointer and press keys: X11 and labwc, but not weston.
bool hasHand();

/// What it shows now; the pointer where asked for on X11, always on labwc.
QImage shot(bool withPointer = false);
/// While nothing else changes.
bool showsPointer();
/// Waits until the shot satisfies `holds`; the last one is saved under `name` in the folder of
/// shots either way.
[[nodiscard]] bool waitForShot(const QString& name,
                               const std::function<bool(const QImage&)>& holds);

/// What is colourful: the window with the test picture.
QRect pictureIn(const QImage& image);

/// Something light lies on what is mostly dark there, as text does on a surface of ours.
bool isRead(const QImage& image, QRect place);

/// `keys` as xdotool names them: "ctrl+shift+l".
void press(const QString& keys);
void holdKeys(const QString& keys);
void letGoOfKeys(const QString& keys);
/// A window whose title matches has the keyboard.
bool isActive(qint64 processId, const QString& title);
void activate(qint64 processId, const QString& title);
/// X11: the window manager.
QString run(const QString& program, const QStringList& arguments);
/// X11: the visible window of a process with this title, by its id; empty without one.
QString windowOf(qint64 processId, const QString& title);
QRect geometryOf(const QString& windowId);

/// The person's hand. Places are on the screen, buttons as X11 numbers them.
void movePointer(QPoint place);
void pressButton(int button = 1);
void releaseButton(int button = 1);
void click(QPoint place, int times = 1);
/// Presses at the first place, goes through the others and lets go at the last.
void dragPointer(const QList<QPoint>& places);
}  // namespace screen

}  // namespace tromelo::testing
