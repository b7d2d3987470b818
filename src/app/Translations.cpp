#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace tromelo {

namespace {

// English has a catalogue too, so that whoever prefers it to German doesn't get German.
bool load(QTranslator& translator) {
  return translator.load(QLocale::system(), QStringLiteral("tromelo"), QStringLiteral("_"),
                         QStringLiteral(":/i18n"));
}

}  // namespace

void Translations::install() {
  if (!load(program_)) return;
  QCoreApplication::installTranslator(&program_);
  // Dialogs speak the same language as the program, or English.
  const QString qt = QStringLiteral("qtbase_") + program_.language();
  if (qt_.load(qt, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&qt_);
}

}  // namespace tromelo
