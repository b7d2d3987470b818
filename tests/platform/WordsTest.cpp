#include <gtest/gtest.h>

#include "platform/LanguageName.h"
#include "platform/PlatformWording.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST(LanguageName, IsInTheReadersLanguage) {
  for (const auto& [reader, code, expected] : Table<const char*, QString, QString>{
           {"en_US", "eng", "English"},
           {"de_DE", "en", "Englisch"},
           {"de_DE", "ger", "Deutsch"},
           {"en_US", "por_br", "Brazilian Portuguese"},
           {"en_US", "qaa", "qaa"},
           {"en_US", "in plain English", "in plain English"},
           {"en_US", QString(100000, u'a'), QString(100000, u'a')},
       }) {
    EXPECT_EQ(languageName(code, QLocale(reader)), expected)
        << reader << " " << code.left(20).toStdString();
  }
}

TEST(PlatformWording, NamesThingsAsTheyAreCalledHere) {
  for (const auto& [text, expected] : Table<const char*, const char*>{
           {"⌘O", "Ctrl+O"},
           {"⌥⇧⌘L and ⌘L", "Alt+Shift+Ctrl+L and Ctrl+L"},
           {"Show in Finder", "Show in File Manager"},
           {"Software (stream rejected by VideoToolbox)",
            "Software (stream rejected by hardware decoder)"},
       })
    EXPECT_EQ(platformWording(text), expected) << text;
}

}  // namespace tromelo::testing
