// SPDX-License-Identifier: MIT
//
// A program or library for macOS in the memory of this process.
#ifndef ZTK_TESTS_MACOS_LOADER_IMAGE_H_
#define ZTK_TESTS_MACOS_LOADER_IMAGE_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "mach_o.h"

namespace ztk::loader {

struct Image {
  std::string path;
  std::vector<char> file;
  std::uint8_t *base = nullptr;  // the address of its header
  std::intptr_t slide = 0;
  std::vector<Segment> segments;
  std::vector<Section> sections;
  std::vector<std::string> libraries;
  std::map<std::string, void *> exports;
  Fixups fixups{};
  std::uint64_t mainOffset = 0;

  // Returns the memory of the section as an array of T; empty if there is none.
  template <typename T>
  std::span<T> Row(const std::string &name) const {
    for (const Section &section : sections) {
      if (std::strncmp(section.name, name.c_str(), sizeof section.name) == 0) {
        return {reinterpret_cast<T *>(section.address +
                                      static_cast<std::uintptr_t>(slide)),
                section.size / sizeof(T)};
      }
    }
    return {};
  }
};

// Maps the program and the libraries that it links, except those of macOS. If
// one cannot be loaded, ends the process with a message.
std::vector<Image *> Load(const std::string &path);

// Returns the address of a symbol: a definition in an image, a function of this
// loader (with the prefix "darwin_"), or the function of this system with the
// same name. If there is none, returns the address of code that prints the
// name.
void *Resolve(const std::string &name);

// The parts of loading for other formats.
void RegisterUnwindInfo(const Image &image);
void RegisterObjectiveC(const Image &image);
void PrepareFoundation();
void *ClassNamed(const std::string &name);
void PrepareThreadVariables(const Image &image);

[[noreturn]] void Fail(const std::string &what);

}  // namespace ztk::loader

#endif  // ZTK_TESTS_MACOS_LOADER_IMAGE_H_
