#include "platform/Timeline.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QString>
#include <cstdlib>
#include <thread>

namespace tromelo::testing {

TEST(Timeline, PrintsEachStepOnceWithItsThreadWhenTheLastIsDone) {
  char* text = nullptr;
  std::size_t length = 0;
  std::FILE* out = open_memstream(&text, &length);
  Timeline::note("too early");
  Timeline::begin();
  Timeline::note("first");
  std::thread([] { Timeline::note("elsewhere"); }).join();
  Timeline::note("first");
  Timeline::finish("last", out);
  Timeline::finish("too late", out);
  std::fclose(out);
  const QRegularExpression steps(
      "^ *[0-9.]+ ms .* main +first\n.* (?!main).* elsewhere\n.* main +last\n$");
  EXPECT_TRUE(steps.match(text).hasMatch()) << text;
  std::free(text);
}

}  // namespace tromelo::testing
