// SPDX-License-Identifier: MIT
//
// The classes of tests that are linked into the program.
#ifndef ZTK_TESTS_WINDOW_REGISTRY_H_
#define ZTK_TESTS_WINDOW_REGISTRY_H_

#include <QObject>
#include <memory>
#include <vector>

namespace ztk::window {

struct RegisteredTest {
  const char *name;
  std::unique_ptr<QObject> (*make)();
};

inline std::vector<RegisteredTest> &RegisteredTests() {
  static std::vector<RegisteredTest> tests;
  return tests;
}

template <typename Test>
bool Register(const char *name) {
  RegisteredTests().push_back(
      {.name = name, .make = []() -> std::unique_ptr<QObject> {
         return std::make_unique<Test>();
       }});
  return true;
}

}  // namespace ztk::window

#endif  // ZTK_TESTS_WINDOW_REGISTRY_H_
