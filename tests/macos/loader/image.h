// SPDX-License-Identifier: MIT
//
// A program or library of macOS in the memory of this process.
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
  std::uint8_t *base = nullptr;  // where its header lies
  std::intptr_t slide = 0;
  std::vector<Segment> segments;
  std::vector<Section> sections;
  std::vector<std::string> libraries;
  std::map<std::string, void *> exports;
  Fixups fixups{};
  std::uint64_t mainOffset = 0;

  // The section's memory as a row of T; empty when there is none.
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

// Maps the program and what it links that is no part of macOS. Ends the
// process with a message for what cannot be loaded.
std::vector<Image *> Load(const std::string &path);

// The address that a name of macOS stands for in this process: a definition of
// an image, a function of this loader ("darwin_" before it), or the function of
// the same name of this system. What is missing is named when it is called.
void *Resolve(const std::string &name);

// The parts of loading that know another format.
void RegisterUnwindInfo(const Image &image);
void RegisterObjectiveC(const Image &image);
void PrepareFoundation();
void *ClassNamed(const std::string &name);
void PrepareThreadVariables(const Image &image);

[[noreturn]] void Fail(const std::string &what);

}  // namespace ztk::loader

#endif  // ZTK_TESTS_MACOS_LOADER_IMAGE_H_
