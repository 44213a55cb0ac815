// SPDX-License-Identifier: MIT
//
// Thread-local variables. A program has a descriptor of three words for each
// variable. It calls the function in the first word to get the address of the
// variable in the current thread.
#include <map>

#include "image.h"

namespace ztk::loader {
namespace {

struct Variable {
  void (*ask)();
  const Image *image;
  std::size_t offset;
};

std::span<const char> FirstContent(const Image &image, std::size_t *size) {
  std::span<const char> content;
  std::uint64_t begin = UINT64_MAX;
  std::uint64_t end = 0;
  for (const Section &section : image.sections) {
    const std::uint32_t kind = section.flags & 0xFF;
    if (kind != kThreadData && kind != kThreadZero) continue;
    begin = std::min(begin, section.address);
    end = std::max(end, section.address + section.size);
    if (kind == kThreadData) {
      content = {
          reinterpret_cast<const char *>(image.base) +
              (section.address + static_cast<std::uint64_t>(image.slide) -
               reinterpret_cast<std::uint64_t>(image.base)),
          section.size};
    }
  }
  *size = end > begin ? end - begin : 0;
  return content;
}

}  // namespace

// This function changes only the register r11.
extern "C" __attribute__((preserve_all, used)) void ZTKFindAddress(
    const Variable *variable, void **address) {
  thread_local std::map<const Image *, std::vector<char>> blocks;
  std::vector<char> &block = blocks[variable->image];
  if (block.empty()) {
    std::size_t size = 0;
    const auto content = FirstContent(*variable->image, &size);
    block.assign(size, 0);
    std::copy(content.begin(), content.end(), block.begin());
  }
  *address = block.data() + variable->offset;
}

// The descriptor is in rdi. This function changes only the register rax.
extern "C" __attribute__((naked)) void ZTKAskForAddress() {
  asm volatile(
      "push %r11\n push %rsi\n push %rsi\n mov %rsp, %rsi\n"
      "call ZTKFindAddress@PLT\n"
      "pop %rax\n pop %rsi\n pop %r11\n ret\n");
}

void PrepareThreadVariables(const Image &image) {
  for (const Section &section : image.sections) {
    if ((section.flags & 0xFF) != kThreadVariables) continue;
    for (Variable &variable : image.Row<Variable>(section.name)) {
      variable.ask = ZTKAskForAddress;
      variable.image = &image;
    }
  }
}

}  // namespace ztk::loader
