#include "lines/LineText.h"

#include <gtest/gtest.h>

#include "lines/SubtitleBytes.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST(LineTextTest, IsWhatPeopleRead) {
  for (const auto& [name, text, read] : Table<const char*, QString, QString>{
           {"commas are text", "Well, well, well", "Well, well, well"},
           {"marks", "{\\i1}He{\\i0} said {\\pos(10,20)\\c&H00&}no", "He said no"},
           {"rows", "One \\N{\\an8} two\\nthree\\N", "One|two|three"},
           {"a hard space and a lone backslash", "a\\hb C:\\Users", "a b C:\\Users"},
           {"a drawing", "{\\an7\\p1}m 0 0 l 10 10{\\p0}Sign", "Sign"},
           {"a place is no drawing", "{\\pos(1,2)}Here", "Here"},
           {"a brace that is left open", "a { b", "a { b"},
           {"nothing but marks", "{\\k20}", ""},
       }) {
    SCOPED_TRACE(name);
    EXPECT_EQ(textOfEvent("7,0,Default,,0,0,0,," + text).replace(QChar::LineSeparator, '|'), read);
  }
  EXPECT_EQ(textOfEvent(u"no event"), "");
}

TEST(LineTextTest, IsFoundWhateverItsCaseAndAccents) {
  const QString line = QStringLiteral("Où est\u2028la ÎLE, größer Šárka?");
  for (const char* sought : {"OU EST LA", "île", "ile", "GRÖSSER", "sarka"})
    EXPECT_TRUE(foldedText(line).contains(foldedText(sought))) << sought;
  EXPECT_FALSE(foldedText(line).contains(foldedText("estla")));
}

TEST(LineTextTest, ComesOfAnyCoding) {
  for (const auto& [name, bytes, codepage, read] :
       Table<const char*, QByteArray, const char*, QString>{
           {"UTF-8, whatever is chosen",
            "Gr\xc3\xb6\xc3\x9f"
            "e",
            "CP1251", "Größe"},
           {"what is likely",
            "Die Gr\xf6\xdf"
            "e der \xc4pfel",
            "auto", "Die Größe der Äpfel"},
           {"what is chosen", "\xcf\xf0\xe8\xe2\xe5\xf2", "CP1251", "Привет"},
           {"what isn't there",
            "Gr\xf6\xdf"
            "e",
            "no-such-page", "Größe"},
           {"what doesn't belong there",
            "a\x81\xff"
            "b",
            "SHIFT_JIS", "a??b"},
           {"no character of today's", "a\xfd\xae\xae\xae\xae\xae", "UTF-8",
            "a\ufffd\ufffd\ufffd\ufffd\ufffd\ufffd"},
           {"a last letter whose accent might follow", "ti\xea", "CP1258", "tiê"},
       }) {
    SCOPED_TRACE(name);
    EXPECT_EQ(QString::fromUtf8(readableSubtitles(bytes, codepage)), read);
  }
  const QByteArray marked(
      "\xff\xfe"
      "a\0",
      4);
  EXPECT_EQ(readableSubtitles(marked, "CP1251"), marked);
}

}  // namespace tromelo::testing
