// SPDX-License-Identifier: MIT
//
// macho-run PROGRAM [ARGUMENT...]: runs a program of macOS for x86_64. What
// that proves and what it does not, tells README.md.
#include <cstdlib>

#include "image.h"
#include "iokit_double.h"

// What a program asks for by _NSGetArgv().
extern "C" char **darwin_words;

int main(int count, char **arguments, char **environment) {
  using namespace ztk::loader;
  if (count < 2) Fail("name a program of macOS, and what it is given");
  PrepareFoundation();
  // The bus of a program that does not describe one.
  const char *mixers = std::getenv("MACHO_RUN_MIXERS");
  if (mixers != nullptr) {
    ztk::iokit::CurrentWorld().bus.assign(
        static_cast<std::size_t>(std::atoi(mixers)), ztk::iokit::Mixer());
  }
  const std::vector<Image *> images = Load(arguments[1]);
  ++arguments;
  --count;
  darwin_words = arguments;
  using Code = void (*)(int, char **, char **, void *);
  // A library is ready before who uses it.
  for (auto image = images.rbegin(); image != images.rend(); ++image) {
    for (const Code code : (*image)->Row<Code>("__mod_init_func")) {
      code(count, arguments, environment, nullptr);
    }
  }
  using Main = int (*)(int, char **, char **, void *);
  const Image &program = *images.front();
  if (program.mainOffset == 0) Fail(program.path + " has no main function");
  const auto run = reinterpret_cast<Main>(program.base + program.mainOffset);
  std::exit(run(count, arguments, environment, nullptr));
}
