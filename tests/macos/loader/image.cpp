// SPDX-License-Identifier: MIT
#include "image.h"

#include <dlfcn.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

namespace ztk::loader {
namespace {

constexpr std::uint64_t kPage = 4096;

std::vector<Image *> theImages;

std::uint64_t PagesUp(std::uint64_t size) {
  return (size + kPage - 1) / kPage * kPage;
}

template <typename T>
const T &At(const Image &image, std::uint64_t offset) {
  if (offset + sizeof(T) > image.file.size()) Fail(image.path + " is cut off");
  return *reinterpret_cast<const T *>(image.file.data() + offset);
}

void ReadSegment(Image *image, std::uint64_t at) {
  const auto &segment = At<Segment>(*image, at);
  image->segments.push_back(segment);
  for (std::uint32_t i = 0; i < segment.sections; ++i) {
    image->sections.push_back(
        At<Section>(*image, at + sizeof(Segment) + i * sizeof(Section)));
  }
}

void ReadSymbols(Image *image, const SymbolTable &table) {
  constexpr std::uint8_t kDebug = 0xE0;
  constexpr std::uint8_t kExternal = 0x01;
  constexpr std::uint8_t kKind = 0x0E;
  constexpr std::uint8_t kInSection = 0x0E;
  for (std::uint32_t i = 0; i < table.count; ++i) {
    const auto &symbol = At<Symbol>(*image, table.symbols + i * sizeof(Symbol));
    if ((symbol.type & kDebug) != 0 || (symbol.type & kExternal) == 0 ||
        (symbol.type & kKind) != kInSection) {
      continue;
    }
    image->exports[image->file.data() + table.strings + symbol.name] =
        reinterpret_cast<void *>(symbol.address);
  }
}

void ReadCommands(Image *image) {
  const auto &header = At<Header>(*image, 0);
  if (header.magic != kMagic || header.cpu != kX86_64) {
    Fail(image->path + " is no program of macOS for x86_64");
  }
  std::uint64_t at = sizeof(Header);
  for (std::uint32_t i = 0; i < header.commands; ++i) {
    const auto &command = At<Command>(*image, at);
    switch (command.kind) {
      case kSegment:
        ReadSegment(image, at);
        break;
      case kSymbolTable:
        ReadSymbols(image, At<SymbolTable>(*image, at));
        break;
      case kFixups:
        image->fixups = At<Fixups>(*image, at);
        break;
      case kMain:
        image->mainOffset = At<MainCommand>(*image, at).offset;
        break;
      case kLoadLibrary:
        image->libraries.emplace_back(image->file.data() + at +
                                      At<LibraryCommand>(*image, at).name);
        break;
      default:
        break;
    }
    at += command.size;
  }
}

// The first segment of a program only reserves the addresses from 0.
bool IsMapped(const Segment &segment) { return segment.protection != 0; }

void Map(Image *image) {
  std::uint64_t low = UINT64_MAX;
  std::uint64_t high = 0;
  for (const Segment &segment : image->segments) {
    if (!IsMapped(segment)) continue;
    low = std::min(low, segment.address);
    high = std::max(high, segment.address + PagesUp(segment.size));
  }
  void *memory = mmap(nullptr, high - low, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) Fail("no memory for " + image->path);
  image->base = static_cast<std::uint8_t *>(memory);
  image->slide =
      reinterpret_cast<std::intptr_t>(memory) - static_cast<std::intptr_t>(low);
  for (const Segment &segment : image->segments) {
    if (!IsMapped(segment)) continue;
    std::memcpy(image->base + (segment.address - low),
                image->file.data() + segment.fileOffset, segment.fileSize);
  }
  for (auto &[name, address] : image->exports) {
    address = static_cast<std::uint8_t *>(address) + image->slide;
  }
}

// Reads the opcodes that describe which addresses have to be changed, and to
// what.
class Opcodes {
 public:
  Opcodes(const Image &image, std::uint32_t offset, std::uint32_t size)
      : image_(image),
        at_(reinterpret_cast<const std::uint8_t *>(image.file.data()) + offset),
        end_(at_ + size) {}

  void Rebase() {
    while (at_ < end_) {
      const std::uint8_t low = Next();
      std::uint64_t count = 1;
      std::uint64_t step = 8;
      if (opcode_ == 0x20) SetPlace(low);
      if (opcode_ == 0x30) place_ += Number();
      if (opcode_ == 0x40) place_ += low * step;
      if (opcode_ < 0x50) continue;
      if (opcode_ == 0x50) count = low;
      if (opcode_ == 0x60 || opcode_ == 0x80) count = Number();
      if (opcode_ == 0x70 || opcode_ == 0x80) step += Number();
      for (; count > 0; --count, place_ += step) {
        *reinterpret_cast<std::int64_t *>(place_) += image_.slide;
      }
    }
  }

  // Opcode 0 ends the list. In the list of lazy bindings it only separates
  // entries.
  void Bind(bool weak, bool lazy) {
    while (at_ < end_) {
      const std::uint8_t low = Next();
      switch (opcode_) {
        case 0x00:
          if (!lazy) return;
          break;
        case 0x20:
          Number();
          break;
        case 0x40:
          // This entry is a definition that is not weak. The references to it
          // are in other entries.
          skip_ = weak && (low & 0x8) != 0;
          name_ = reinterpret_cast<const char *>(at_);
          at_ += name_.size() + 1;
          break;
        case 0x60:
          addend_ = SignedNumber();
          break;
        case 0x70:
          SetPlace(low);
          break;
        case 0x80:
          place_ += Number();
          break;
        case 0x90:
          BindOne(8);
          break;
        case 0xA0:
          BindOne(8 + Number());
          break;
        case 0xB0:
          BindOne(8 + low * std::uint64_t{8});
          break;
        case 0xC0: {
          std::uint64_t count = Number();
          const std::uint64_t step = 8 + Number();
          while (count-- > 0) BindOne(step);
          break;
        }
        default:
          break;
      }
    }
  }

 private:
  std::uint8_t Next() {
    opcode_ = *at_ & 0xF0;
    return *at_++ & 0x0F;
  }

  std::uint64_t Number() {
    std::uint64_t value = 0;
    int shift = 0;
    do {
      value |= std::uint64_t{*at_ & 0x7Fu} << shift;
      shift += 7;
    } while ((*at_++ & 0x80) != 0);
    return value;
  }

  std::int64_t SignedNumber() {
    std::int64_t value = 0;
    int shift = 0;
    std::uint8_t byte = 0;
    do {
      byte = *at_++;
      value |= std::int64_t{byte & 0x7F} << shift;
      shift += 7;
    } while ((byte & 0x80) != 0);
    return (byte & 0x40) != 0 ? value | -(std::int64_t{1} << shift) : value;
  }

  void SetPlace(std::uint8_t segment) {
    place_ = image_.segments.at(segment).address +
             static_cast<std::uint64_t>(image_.slide) + Number();
  }

  void BindOne(std::uint64_t step) {
    if (!skip_) {
      *reinterpret_cast<std::int64_t *>(place_) =
          reinterpret_cast<std::int64_t>(Resolve(name_)) + addend_;
    }
    place_ += step;
  }

  const Image &image_;
  const std::uint8_t *at_;
  const std::uint8_t *end_;
  std::uint8_t opcode_ = 0;
  std::uint64_t place_ = 0;
  std::int64_t addend_ = 0;
  std::string name_;
  bool skip_ = false;
};

void FixUp(const Image &image) {
  const Fixups &fixups = image.fixups;
  Opcodes(image, fixups.rebase, fixups.rebaseSize).Rebase();
  Opcodes(image, fixups.bind, fixups.bindSize).Bind(false, false);
  Opcodes(image, fixups.weakBind, fixups.weakBindSize).Bind(true, false);
  Opcodes(image, fixups.lazyBind, fixups.lazyBindSize).Bind(false, true);
}

void Protect(const Image &image) {
  constexpr std::uint32_t kMayRun = 4;
  for (const Segment &segment : image.segments) {
    if (!IsMapped(segment) || (segment.protection & kMayRun) == 0) continue;
    mprotect(reinterpret_cast<void *>(segment.address +
                                      static_cast<std::uint64_t>(image.slide)),
             PagesUp(segment.size), PROT_READ | PROT_EXEC);
  }
}

// Searches a library as dyld does, first in the folder from the environment.
std::string PlaceOf(const std::string &library) {
  const char *folder = std::getenv("DYLD_FRAMEWORK_PATH");
  const std::size_t name = library.find(".framework/");
  if (folder == nullptr || name == std::string::npos) return library;
  return std::string(folder) + library.substr(library.rfind('/', name));
}

bool IsOfMacOS(const std::string &library) {
  return library.starts_with("/System/") || library.starts_with("/usr/lib/");
}

void Read(const std::string &path) {
  for (const Image *image : theImages) {
    if (image->path == path) return;
  }
  auto *image = new Image{.path = path};
  theImages.push_back(image);
  std::ifstream file(path, std::ios::binary);
  image->file.assign(std::istreambuf_iterator<char>(file), {});
  ReadCommands(image);
  Map(image);
  for (const std::string &library : image->libraries) {
    if (!IsOfMacOS(library)) Read(PlaceOf(library));
  }
}

// Makes code for a missing function. The code prints the name and ends the
// process.
[[noreturn]] void Missing(const char *name) {
  Fail(std::string(name) + " was called, which the loader does not have");
}

void *MakeMissing(const std::string &name) {
  static std::uint8_t *code = nullptr;
  static std::size_t left = 0;
  constexpr std::size_t kSize = 32;
  if (left < kSize) {
    left = 64 * kPage;
    code = static_cast<std::uint8_t *>(
        mmap(nullptr, left, PROT_READ | PROT_WRITE | PROT_EXEC,
             MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
  }
  std::uint8_t *made = code;
  const char *text = strdup(name.c_str());
  void (*target)(const char *) = Missing;
  // mov rdi, text; mov rax, target; push rax; and rsp, -16; call rax
  const std::uint8_t begin[] = {0x48, 0xBF};
  const std::uint8_t middle[] = {0x48, 0xB8};
  const std::uint8_t end[] = {0x48, 0x83, 0xE4, 0xF0, 0xFF, 0xD0};
  std::memcpy(made, begin, 2);
  std::memcpy(made + 2, &text, 8);
  std::memcpy(made + 10, middle, 2);
  std::memcpy(made + 12, &target, 8);
  std::memcpy(made + 20, end, sizeof end);
  code += kSize;
  left -= kSize;
  return made;
}

}  // namespace

void Fail(const std::string &what) {
  std::fflush(nullptr);
  std::fprintf(stderr, "macho-run: %s\n", what.c_str());
  _exit(125);
}

void *Resolve(const std::string &name) {
  static std::map<std::string, void *> known;
  const auto found = known.find(name);
  if (found != known.end()) return found->second;
  void *address = nullptr;
  // Types are compared by the address of their type_info. dyld uses one of all
  // copies. This loader uses the copy of the C++ library, which cannot be
  // changed.
  if (name.starts_with("__ZTI"))
    address = dlsym(RTLD_DEFAULT, name.c_str() + 1);
  for (const Image *image : theImages) {
    if (address != nullptr) break;
    const auto definition = image->exports.find(name);
    if (definition != image->exports.end()) {
      address = definition->second;
    }
  }
  if (address == nullptr) address = ClassNamed(name);
  if (address == nullptr) {
    // The symbol of a C name starts with an underscore. A variant may follow
    // after "$".
    const std::string plain = name.substr(1, name.find('$') - 1);
    address = dlsym(RTLD_DEFAULT, ("darwin_" + plain).c_str());
    if (address == nullptr) address = dlsym(RTLD_DEFAULT, plain.c_str());
  }
  if (address == nullptr) address = MakeMissing(name);
  return known[name] = address;
}

std::vector<Image *> Load(const std::string &path) {
  Read(path);
  for (const Image *image : theImages) {
    FixUp(*image);
    RegisterObjectiveC(*image);
    PrepareThreadVariables(*image);
    RegisterUnwindInfo(*image);
    Protect(*image);
  }
  return theImages;
}

}  // namespace ztk::loader
