#include <QCoreApplication>

#include "support/RunTests.h"

int main(int argc, char** argv) { return tromelo::testing::runTests<QCoreApplication>(argc, argv); }
