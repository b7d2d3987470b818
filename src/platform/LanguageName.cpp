#include "platform/LanguageName.h"

#include <unicode/locdspnm.h>
#include <unicode/locid.h>

#include <array>
#include <memory>
#include <optional>

namespace tromelo {

namespace {

std::optional<icu::Locale> locale(QString tag) {
  UErrorCode status = U_ZERO_ERROR;
  auto result = icu::Locale::forLanguageTag(tag.replace(u'_', u'-').toStdString(), status);
  result.canonicalize(status);  // of several codes for one language the one that has its name
  if (U_FAILURE(status) || result.isBogus() || !*result.getLanguage()) return {};
  return result;
}

icu::Locale localeOf(const QLocale& reader) {
  // The first is the language that the person reads; the locale's own name follows its numbers.
  return locale(reader.uiLanguages().value(0)).value_or(icu::Locale::getEnglish());
}

}  // namespace

QString languageName(const QString& code, const QLocale& reader) {
  const auto language = locale(code);
  if (!language) return code;
  std::array context{UDISPCTX_DIALECT_NAMES, UDISPCTX_NO_SUBSTITUTE};
  const std::unique_ptr<icu::LocaleDisplayNames> names(
      icu::LocaleDisplayNames::createInstance(localeOf(reader), context.data(), context.size()));
  icu::UnicodeString name;
  names->localeDisplayName(*language, name);
  if (name.isBogus()) names->languageDisplayName(language->getLanguage(), name);
  if (name.isBogus()) return code;
  return QString::fromUtf16(name.getBuffer(), name.length());
}

}  // namespace tromelo
