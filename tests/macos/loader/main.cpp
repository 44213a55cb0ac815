// SPDX-License-Identifier: MIT
//
// macho-run PROGRAM [ARGUMENT...]: runs a program for macOS on x86_64.
// README.md describes what this proves and what it does not prove.
#include <cstdlib>

#include "image.h"
#include "iokit_double.h"

// The arguments that a program gets from _NSGetArgv().
extern "C" char **darwin_words;

int main(int count, char **arguments, char **environment) {
  using namespace ztk::loader;
  if (count < 2) Fail("give a program for macOS and its arguments");
  PrepareFoundation();
  // The default USB bus.
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
  // A library is initialised before the images that use it.
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
