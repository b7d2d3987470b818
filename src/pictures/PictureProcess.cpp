#include "pictures/PictureProcess.h"

#include <utility>

#include "platform/HostEnvironment.h"

namespace tromelo {

namespace {

/// Milliseconds for a process that was killed to be gone.
constexpr int kPatienceAtTheEnd = 500;

}  // namespace

PictureProcess::PictureProcess(Program program, Clock& clock)
    : program_(std::move(program)), clock_(clock) {}

PictureProcess::~PictureProcess() {
  end();
  for (const QPointer<QProcess>& process : dismissed_)
    if (process &&
        (process->state() == QProcess::NotRunning || process->waitForFinished(kPatienceAtTheEnd)))
      delete process;
}

void PictureProcess::ask(const PictureRequest& request, Answer answer) {
  request_ = request;
  answer_ = std::move(answer);
  if (!process_) start();
  limit_ = clock_.after(kPatience, [this] { fail(); });
  if (process_->isOpen()) process_->write(request.line());
}

void PictureProcess::start() {
  received_.clear();
  isHeard_ = std::make_shared<bool>();
  process_ = new QProcess;  // see dismiss()
  process_->setProcessEnvironment(HostEnvironment::processEnvironment());
  process_->setStandardErrorFile(QProcess::nullDevice());
  const auto hear = [this, heard = std::weak_ptr(isHeard_)](void (PictureProcess::*what)()) {
    return [this, heard, what] {
      if (!heard.expired()) (this->*what)();
    };
  };
  // Posted: a process that can't be started says so before anybody could have asked it.
  const auto fails = hear(&PictureProcess::fail);
  QObject::connect(process_, &QProcess::errorOccurred, process_, fails, Qt::QueuedConnection);
  QObject::connect(process_, &QProcess::finished, process_, fails, Qt::QueuedConnection);
  QObject::connect(process_, &QProcess::readyReadStandardOutput, process_,
                   hear(&PictureProcess::read));
  process_->start(program_.file, program_.arguments);
}

void PictureProcess::read() {
  received_ += process_->readAllStandardOutput();
  if (!answer_) return received_.isEmpty() ? void() : fail();
  auto taken = takePictureAnswer(received_, request_.room);
  if (const auto* unread = std::get_if<UnreadAnswer>(&taken)) {
    if (*unread == UnreadAnswer::nonsense) fail();
    return;
  }
  auto& answer = std::get<PictureAnswer>(taken);
  if (answer.number != request_.number || !received_.isEmpty()) return fail();
  limit_ = clock_.after(kRest, [this] { end(); });
  finish({.picture = std::move(answer.picture)});
}

void PictureProcess::finish(const Outcome& outcome) {
  if (const auto answer = std::exchange(answer_, nullptr)) answer(outcome);
}

void PictureProcess::fail() {
  dismiss();
  finish({.hasFailed = true});
}

void PictureProcess::end() {
  answer_ = nullptr;
  dismiss();
}

void PictureProcess::dismiss() {
  limit_.reset();
  isHeard_.reset();
  auto* const process = std::exchange(process_, nullptr);
  if (!process) return;
  process->disconnect();
  // Nobody waits for it to be gone, which the kernel may put off for as long as a disk does.
  dismissed_.removeIf([](const QPointer<QProcess>& one) { return !one; });
  dismissed_.append(process);
  if (process->state() == QProcess::NotRunning) return process->deleteLater();
  QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
  process->kill();
}

}  // namespace tromelo
