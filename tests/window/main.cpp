// SPDX-License-Identifier: MIT
//
// Runs the class of tests that the first argument names; the other arguments
// are those of Qt Test.
#include <QApplication>
#include <QTest>
#include <cstdio>
#include <cstring>

#include "window/registry.h"

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  for (const auto &test : ztk::window::RegisteredTests()) {
    if (argc < 2 || std::strcmp(argv[1], test.name) != 0) continue;
    argv[1] = argv[0];
    return QTest::qExec(test.make().get(), argc - 1, argv + 1);
  }
  std::fprintf(stderr, "Usage: %s CLASS [option of Qt Test]...\n", argv[0]);
  return 1;
}
