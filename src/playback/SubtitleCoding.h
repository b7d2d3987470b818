#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <optional>
#include <string>

#include "platform/Background.h"

namespace tromelo {

class MpvEngine;

/// How the characters of the file of subtitles that is shown are coded, where it doesn't say so
/// itself: by the engine's guess, or as the person chooses for this film. Main thread only.
class SubtitleCoding : public QObject {
  Q_OBJECT
  Q_PROPERTY(QStringList names READ names CONSTANT)
  Q_PROPERTY(int chosen READ chosen NOTIFY changed)
  Q_PROPERTY(QString note READ note NOTIFY changed)

 public:
  explicit SubtitleCoding(MpvEngine& engine) : engine_(engine) {}

  /// The file of text that is shown; none: the subtitles are of another kind.
  void setFile(const std::optional<std::string>& path);
  /// By the engine, as it names it.
  void setCodepage(const std::string& codepage);
  const std::string& codepage() const { return codepage_; }

  /// For people; the first is the guess.
  static QStringList names();
  int chosen() const;  // in names
  Q_INVOKABLE void choose(int name);
  /// Why there is nothing to choose: a sentence, or empty.
  QString note() const;

 Q_SIGNALS:
  void changed();

 private:
  enum class State { noFile, unread, unicode, unknown };

  void set(State state);

  MpvEngine& engine_;
  std::string codepage_;
  std::optional<std::string> file_;
  State state_ = State::noFile;
  Background reading_;
};

}  // namespace tromelo
