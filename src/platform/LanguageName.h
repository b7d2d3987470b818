#pragma once

#include <QLocale>
#include <QString>

namespace tromelo {

/// What people who read `reader` call a language ("English", "Englisch", "Brazilian Portuguese").
/// `code` has two or three letters ("en", "deu", "ger"), with or without a region or script
/// ("pt-BR", "zh-Hans"). A code without a name stands for itself.
QString languageName(const QString& code, const QLocale& reader = QLocale());

}  // namespace tromelo
