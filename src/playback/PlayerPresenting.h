#pragma once

#include <QString>
#include <QUrl>

namespace tromelo {

/// What the model asks of the player window. Implemented by PlayerWindowController; main thread
/// only.
class PlayerPresenting {
 public:
  virtual ~PlayerPresenting() = default;

  /// A file was opened and its window has not been shown yet.
  virtual void setAwaitingVideo(bool awaiting) = 0;
  /// Playback of the current file has (re)started.
  virtual void setVideoReady(bool ready) = 0;
  virtual bool hasWindow() const = 0;
  /// The engine's window goes, and another comes with the same film.
  virtual void replaceWindow() = 0;
  virtual void reveal() = 0;
  virtual void close() = 0;
  virtual void showLibrary() = 0;
  virtual void showToast(const QString& text) = 0;
  /// A picture of the film was kept there.
  virtual void showKeptPicture(const QUrl& picture) = 0;
};

}  // namespace tromelo
