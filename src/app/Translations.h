#pragma once

#include <QTranslator>

namespace tromelo {

/// The program's texts, and Qt's own, in the first of the person's languages that there is a
/// catalogue of. Needs the application object, and ends before it. Install before any text is made.
class Translations {
 public:
  void install();

 private:
  QTranslator program_;
  QTranslator qt_;
};

}  // namespace tromelo
