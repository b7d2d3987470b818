#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>
#include <functional>

namespace tromelo {

class MpvEngine;

/// The versions of what the program runs on, as text for people and for bug reports. What takes a
/// while to find out is added once it is known. Main thread only.
class AboutFacts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program has one.")
  Q_PROPERTY(QString version READ version CONSTANT)
  Q_PROPERTY(QString details READ details NOTIFY detailsChanged)

 public:
  /// `findVulkan` gives a line for each device; it is called on another thread. `picture` is how
  /// the pictures get to the screen.
  AboutFacts(MpvEngine& engine, QString picture, std::function<QStringList()> findVulkan);

  /// "Version 0.1.0"
  static QString version();
  /// A line for each fact.
  QString details() const;
  /// Copies all of it to the clipboard.
  Q_INVOKABLE void copy() const;

 Q_SIGNALS:
  void detailsChanged();

 private:
  void ask(MpvEngine& engine, const char* property, QString* line, const QString& pattern);
  void findDevices(std::function<QStringList()> findVulkan);

  const QString picture_;
  QString engine_;
  QString renderer_;
  QStringList devices_;
};

}  // namespace tromelo
