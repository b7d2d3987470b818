#include "EndToEnd.h"

namespace tromelo::testing {
namespace {

class Language : public EndToEnd {};

TEST_F(Language, IsTheFirstOfThePersonsThatTheProgramKnows) {
  const struct {
    const char* languages;
    const char* title;
  } rows[] = {{"fr:de_AT", "Kein Video ausgewählt"}, {"en_GB:de", "No video selected"}};
  for (const auto& row : rows) {
    RunningPlayer reader;
    reader.environment.insert(QStringLiteral("LANGUAGE"), QString::fromLatin1(row.languages));
    reader.start();
    EXPECT_TRUE(reader.waitFor(QStringLiteral("title"), QString::fromUtf8(row.title)))
        << row.languages;
    EXPECT_EQ(reader.quit(), 0);
  }
}

}  // namespace
}  // namespace tromelo::testing
