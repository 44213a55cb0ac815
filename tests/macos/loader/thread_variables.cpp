// SPDX-License-Identifier: MIT
//
// Variables of which each thread has its own: a program asks for the address
// through a description of three words, the first of which is called.
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

extern "C" void *ZTKAddressOf(const Variable *variable) {
  thread_local std::map<const Image *, std::vector<char>> blocks;
  std::vector<char> &block = blocks[variable->image];
  if (block.empty()) {
    std::size_t size = 0;
    const auto content = FirstContent(*variable->image, &size);
    block.assign(size, 0);
    std::copy(content.begin(), content.end(), block.begin());
  }
  return block.data() + variable->offset;
}

// Called with the description in rdi; changes no register but rax.
extern "C" __attribute__((naked)) void ZTKAskForAddress() {
  asm volatile(
      "push %rbp\n mov %rsp, %rbp\n"
      "push %rdi\n push %rsi\n push %rdx\n push %rcx\n push %r8\n push %r9\n"
      "push %r10\n push %r11\n sub $128, %rsp\n"
      "movups %xmm0, (%rsp)\n movups %xmm1, 16(%rsp)\n"
      "movups %xmm2, 32(%rsp)\n movups %xmm3, 48(%rsp)\n"
      "movups %xmm4, 64(%rsp)\n movups %xmm5, 80(%rsp)\n"
      "movups %xmm6, 96(%rsp)\n movups %xmm7, 112(%rsp)\n"
      "call ZTKAddressOf@PLT\n"
      "movups (%rsp), %xmm0\n movups 16(%rsp), %xmm1\n"
      "movups 32(%rsp), %xmm2\n movups 48(%rsp), %xmm3\n"
      "movups 64(%rsp), %xmm4\n movups 80(%rsp), %xmm5\n"
      "movups 96(%rsp), %xmm6\n movups 112(%rsp), %xmm7\n"
      "add $128, %rsp\n pop %r11\n pop %r10\n pop %r9\n pop %r8\n"
      "pop %rcx\n pop %rdx\n pop %rsi\n pop %rdi\n pop %rbp\n ret\n");
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
