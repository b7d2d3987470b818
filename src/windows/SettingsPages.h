#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <utility>

namespace tromelo {

/// The pages of the settings, and the one that is open. Main thread only.
class SettingsPages : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program has one.")
  Q_PROPERTY(Page page READ page WRITE setPage NOTIFY pageChanged)

 public:
  using QObject::QObject;

  /// In the order of their tabs.
  enum Page { General, Playback, Subtitles, Shortcuts };
  Q_ENUM(Page)

  Page page() const { return page_; }
  void setPage(Page page) {
    if (std::exchange(page_, page) != page) Q_EMIT pageChanged();
  }

 Q_SIGNALS:
  void pageChanged();

 private:
  Page page_ = General;
};

}  // namespace tromelo
