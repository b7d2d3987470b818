#include <QApplication>

#include "support/RunTests.h"

int main(int argc, char** argv) { return tromelo::testing::runTests<QApplication>(argc, argv); }
