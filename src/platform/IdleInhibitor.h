#pragma once

#include <QObject>
#include <QString>

namespace tromelo {

/// Keeps the host's screen awake through the desktop's screen saver service. Without a session bus
/// or such a service it does nothing. Main thread only; never waits for the service.
class IdleInhibitor : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
  ~IdleInhibitor() override;

  void setInhibited(bool inhibited);

 private:
  void inhibit();
  void hold(uint cookie);

  bool wanted_ = false;
  bool requested_ = false;  // an answer is on its way
  uint cookie_ = 0;         // 0: not inhibited
};

}  // namespace tromelo
