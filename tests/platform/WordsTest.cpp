#include <gtest/gtest.h>

#include "platform/LanguageName.h"
#include "platform/PlatformWording.h"

namespace tromelo {

TEST(LanguageName, IsInTheReadersLanguage) {
  const struct {
    const char* reader;
    QString code;
    QString expected;
  } rows[] = {
      {"en_US", "eng", "English"},
      {"de_DE", "en", "Englisch"},
      {"de_DE", "ger", "Deutsch"},
      {"en_US", "por_br", "Brazilian Portuguese"},
      {"en_US", "qaa", "qaa"},
      {"en_US", "in plain English", "in plain English"},
      {"en_US", QString(100000, u'a'), QString(100000, u'a')},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(languageName(row.code, QLocale(QLatin1String(row.reader))), row.expected)
        << row.reader << " " << row.code.left(20).toStdString();
  }
}

TEST(PlatformWording, NamesThingsAsTheyAreCalledHere) {
  const struct {
    const char* text;
    const char* expected;
  } rows[] = {
      {"⌘O", "Ctrl+O"},
      {"⌥⇧⌘L and ⌘L", "Alt+Shift+Ctrl+L and Ctrl+L"},
      {"Show in Finder", "Show in File Manager"},
      {"Software (stream rejected by VideoToolbox)",
       "Software (stream rejected by hardware decoder)"},
  };
  for (const auto& row : rows) EXPECT_EQ(platformWording(row.text), row.expected) << row.text;
}

TEST(WithoutKey, IsTheNameOfAControl) {
  EXPECT_EQ(withoutKey("Mute (M)"), "Mute");
  EXPECT_EQ(withoutKey("Playback speed ([ and ])"), "Playback speed");
  EXPECT_EQ(withoutKey("Volume"), "Volume");
}

}  // namespace tromelo
