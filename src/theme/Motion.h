#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QQmlEngine>

namespace tromelo {

/// Whether what changes in an engine's views is seen to move. Main thread only.
class Motion : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool isWanted READ isWanted NOTIFY isWantedChanged)

 public:
  /// The engine's one, which goes with it.
  static Motion& of(QQmlEngine& engine);
  static Motion* create(QQmlEngine* engine, QJSEngine*) { return &of(*engine); }

  bool isWanted() const { return isWanted_; }
  void setWanted(bool isWanted);

 Q_SIGNALS:
  void isWantedChanged();

 private:
  explicit Motion(QQmlEngine& engine) : QObject(&engine) {}

  bool isWanted_ = true;
};

}  // namespace tromelo
