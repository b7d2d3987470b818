#include "platform/HelperProcess.h"

#include <utility>

#include "platform/HostEnvironment.h"

namespace tromelo {

namespace {

/// Milliseconds for a process that was killed to be gone.
constexpr int kPatienceAtTheEnd = 500;

}  // namespace

HelperProcess::~HelperProcess() {
  end();
  for (const QPointer<QProcess>& process : killed_)
    if (process &&
        (process->state() == QProcess::NotRunning || process->waitForFinished(kPatienceAtTheEnd)))
      delete process;
}

void HelperProcess::start(const Program& program, Ears ears) {
  end();
  ears_ = std::make_shared<const Ears>(std::move(ears));
  process_ = new QProcess;  // see end()
  process_->setProcessEnvironment(HostEnvironment::processEnvironment());
  process_->setStandardErrorFile(QProcess::nullDevice());
  const auto tellOfEnd = [weak = std::weak_ptr(ears_)] {
    if (const auto ears = weak.lock()) ears->ended();
  };
  // Posted: a process that can't be started says so before anybody could have asked it.
  QObject::connect(process_, &QProcess::errorOccurred, process_, tellOfEnd, Qt::QueuedConnection);
  QObject::connect(process_, &QProcess::finished, process_, tellOfEnd, Qt::QueuedConnection);
  QObject::connect(process_, &QProcess::readyReadStandardOutput, process_,
                   [process = process_, weak = std::weak_ptr(ears_)] {
                     if (const auto ears = weak.lock())
                       ears->heard(process->readAllStandardOutput());
                   });
  process_->start(program.file, program.arguments);
}

void HelperProcess::write(const QByteArray& bytes) {
  if (process_ && process_->isOpen()) process_->write(bytes);
}

void HelperProcess::end() {
  ears_.reset();
  auto* const process = std::exchange(process_, nullptr);
  if (!process) return;
  process->disconnect();
  // Nobody waits for it to be gone, which the kernel may put off for as long as a disk does.
  killed_.removeIf([](const QPointer<QProcess>& one) { return !one; });
  killed_.append(process);
  if (process->state() == QProcess::NotRunning) return process->deleteLater();
  QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
  process->kill();
}

}  // namespace tromelo
