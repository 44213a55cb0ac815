// SPDX-License-Identifier: MIT
//
// The part of the Mach-O format that the loader reads: 64-bit images for x86_64
// with dyld's opcodes.
#ifndef ZTK_TESTS_MACOS_LOADER_MACH_O_H_
#define ZTK_TESTS_MACOS_LOADER_MACH_O_H_

#include <cstdint>

namespace ztk::loader {

inline constexpr std::uint32_t kMagic = 0xFEEDFACF;
inline constexpr std::uint32_t kX86_64 = 0x01000007;

// Load commands.
inline constexpr std::uint32_t kSymbolTable = 0x2;
inline constexpr std::uint32_t kLoadLibrary = 0xC;
inline constexpr std::uint32_t kSegment = 0x19;
inline constexpr std::uint32_t kFixups = 0x80000022;
inline constexpr std::uint32_t kMain = 0x80000028;

struct Header {
  std::uint32_t magic, cpu, cpuSubtype, fileType, commands, commandsSize;
  std::uint32_t flags, reserved;
};

struct Command {
  std::uint32_t kind, size;
};

struct Segment {
  Command command;
  char name[16];
  std::uint64_t address, size, fileOffset, fileSize;
  std::uint32_t mostProtection, protection, sections, flags;
};

struct Section {
  char name[16], segment[16];
  std::uint64_t address, size;
  std::uint32_t offset, alignment, relocations, relocationCount;
  std::uint32_t flags, reserved[3];
};

// The type of a section is the low byte of its flags.
inline constexpr std::uint32_t kThreadData = 0x11;
inline constexpr std::uint32_t kThreadZero = 0x12;
inline constexpr std::uint32_t kThreadVariables = 0x13;

struct SymbolTable {
  Command command;
  std::uint32_t symbols, count, strings, stringsSize;
};

struct Symbol {
  std::uint32_t name;
  std::uint8_t type, section;
  std::uint16_t description;
  std::uint64_t address;
};

struct Fixups {
  Command command;
  std::uint32_t rebase, rebaseSize, bind, bindSize, weakBind, weakBindSize;
  std::uint32_t lazyBind, lazyBindSize, exports, exportsSize;
};

struct MainCommand {
  Command command;
  std::uint64_t offset, stackSize;
};

struct LibraryCommand {
  Command command;
  std::uint32_t name, time, version, oldestVersion;
};

}  // namespace ztk::loader

#endif  // ZTK_TESTS_MACOS_LOADER_MACH_O_H_
