#include <QGuiApplication>

#include "support/RunTests.h"

int main(int argc, char** argv) { return tromelo::testing::runTests<QGuiApplication>(argc, argv); }
