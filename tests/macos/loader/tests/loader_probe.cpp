// SPDX-License-Identifier: MIT
//
// Tests the services of the loader that every program needs: initialisers,
// exceptions, thread-local variables, streams, arguments.
#include <cstdio>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

struct Initialiser {
  Initialiser() { std::puts("initialiser"); }
} theInitialiser;

thread_local int theOwn = 41;

[[noreturn]] void Throw(int length) {
  const std::string text(static_cast<std::size_t>(length), 'x');
  throw std::runtime_error("thrown " + text);
}

}  // namespace

int main(int count, char ** /*words*/) {
  std::printf("main with %d words\n", count - 1);
  try {
    Throw(3);
  } catch (const std::exception &error) {
    std::printf("caught: %s\n", error.what());
  }
  ++theOwn;
  int other = 0;
  std::thread([&other] {
    theOwn -= 34;
    other = theOwn;
  }).join();
  std::printf("own of the thread: %d %d\n", theOwn, other);
  std::fflush(stdout);
  std::istringstream in("  12 -5");
  int first = 0;
  int second = 0;
  in >> first >> second;
  std::cout << "read: " << first << " and " << second << std::endl;
  return 0;
}
