#include "overlay/LineModel.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "support/ManualClock.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

TEST(LineModelTest, ShowsWhatIsSoughtAndWhatIsSaid) {
  ManualClock clock;
  SubtitleLines lines({"/bin/sh",
                       {"-c",
                        "printf 'line 1 2 One\\nline 3 4 Été\\nline 5 6 ete two\\nline 7 8 "
                        "three\\nline 9 9 Ete\\nend\\n'"}},
                      clock);
  lines.setSource({.kind = SubtitleLines::Source::Kind::text});
  LineModel model;
  const auto shown = [&] {
    QStringList texts;
    for (int row = 0; row < model.count(); ++row)
      texts << model.index(row).data(model.roleNames().key("words")).toString();
    return texts.join(", ");
  };
  model.setSought("ÉTE");
  model.setSeconds(6);
  model.setLines(&lines);
  ASSERT_TRUE(waitFor([&] { return model.count() == 3; }));
  EXPECT_EQ(shown(), "Été, ete two, Ete");
  EXPECT_EQ(model.current(), 1);
  EXPECT_EQ(model.startOf(1), 5);
  model.setSought("");
  EXPECT_EQ(shown(), "One, Été, ete two, three, Ete");
  EXPECT_EQ(model.current(), 2);
  model.setSeconds(0.5);
  EXPECT_EQ(model.current(), -1) << "none has begun";
  lines.setSource({});
  EXPECT_EQ(model.count(), 0);
}

}  // namespace tromelo::testing
