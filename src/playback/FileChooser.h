#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <functional>

namespace tromelo {

/// Asks the person for files. Main thread only; nothing here waits for the answer.
class FileChooser {
 public:
  struct Request {
    QString prompt;              // on the button that confirms
    bool allowsSeveral = false;  // else one file at most
    QStringList extensions;      // without dot, lower case; empty: any file
  };
  /// At least one local file; not called when the person cancels.
  using Callback = std::function<void(const QList<QUrl>& urls)>;

  virtual ~FileChooser() = default;
  virtual void chooseFiles(const Request& request, Callback chosen) = 0;
  /// One that is to be written: called `name`, with the first of the extensions, unless the person
  /// says otherwise, who has been asked about one that is there.
  virtual void chooseNewFile(const Request& request, const QString& name, Callback chosen) = 0;
};

/// File-name extensions of subtitle files, lower case, without dot.
inline QStringList subtitleExtensions() {
  return {QStringLiteral("srt"), QStringLiteral("ass"), QStringLiteral("ssa"),
          QStringLiteral("vtt"), QStringLiteral("sub"), QStringLiteral("sup"),
          QStringLiteral("idx"), QStringLiteral("smi")};
}

}  // namespace tromelo
