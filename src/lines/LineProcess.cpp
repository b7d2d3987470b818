#include "lines/LineProcess.h"

namespace tromelo {

void LineProcess::read(const LineRequest& request, Ears ears) {
  end();
  ears_ = std::move(ears);
  HelperProcess::Program program = program_;
  program.arguments += request.arguments();
  process_.start(program, {.heard = [this](const QByteArray& output) { hear(output); },
                           .ended = [this] { tell({}); }});
  wait();
}

void LineProcess::end() {
  limit_.reset();
  process_.end();
  received_.clear();
  ears_ = nullptr;
}

void LineProcess::hear(const QByteArray& output) {
  received_ += output;
  LineNews news;
  if (!takeLineNews(received_, news)) return tell({});
  wait();
  tell(news);
}

void LineProcess::wait() {
  limit_ = clock_.after(kPatience, [this] { tell({}); });
}

/// Whoever hears it may ask for others at once.
void LineProcess::tell(const std::optional<LineNews>& news) {
  const Ears ears = ears_;
  if (!news || news->isEnd) end();
  if (ears) ears(news);
}

}  // namespace tromelo
