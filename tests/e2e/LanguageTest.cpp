#include "EndToEnd.h"

#include "support/Table.h"

namespace tromelo::testing {
namespace {

class Language : public EndToEnd {};

TEST_F(Language, IsTheFirstOfThePersonsThatTheProgramKnows) {
  for (const auto& [languages, title] : Table<const char*, const char*>{
           {"fr:de_AT", "Kein Video ausgewählt"}, {"en_GB:de", "No video selected"}}) {
    RunningPlayer reader;
    reader.environment.insert("LANGUAGE", languages);
    reader.start();
    EXPECT_TRUE(reader.waitFor("title", title)) << languages;
    EXPECT_EQ(reader.quit(), 0);
  }
}

}  // namespace
}  // namespace tromelo::testing
