#include "pictures/PictureProcess.h"

#include <utility>

namespace tromelo {

void PictureProcess::ask(const PictureRequest& request, Answer answer) {
  request_ = request;
  answer_ = std::move(answer);
  if (!isRunning()) start();
  limit_ = clock_.after(kPatience, [this] { fail(); });
  process_.write(request.line());
}

void PictureProcess::start() {
  received_.clear();
  process_.start(program_, {.heard = [this](const QByteArray& output) { read(output); },
                            .ended = [this] { fail(); }});
}

void PictureProcess::read(const QByteArray& output) {
  received_ += output;
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
  limit_.reset();
  process_.end();
  finish({.hasFailed = true});
}

void PictureProcess::end() {
  answer_ = nullptr;
  limit_.reset();
  process_.end();
}

}  // namespace tromelo
