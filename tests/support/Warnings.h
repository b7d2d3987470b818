#pragma once

#include <QString>

namespace tromelo::testing {

// Every warning that Qt's message log carries during a test fails that test, except:

/// One warning that contains `part` must come before the test ends.
void expectWarning(const QString& part);

/// Warnings that contain `part` may come during this test. For what the machine says, not us.
void allowWarning(const QString& part);

/// For main(): begins with the next test.
void watchWarnings();

}  // namespace tromelo::testing
