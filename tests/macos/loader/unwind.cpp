// SPDX-License-Identifier: MIT
//
// An image has compact unwind entries for exceptions. The unwinder of this
// system uses call frame information instead. So this file makes call frame
// information from the entries: one description for each function.
#include <cstring>

#include "image.h"

extern "C" void __register_frame(void *frames);

namespace ztk::loader {
namespace {

struct UnwindHeader {
  std::uint32_t version, commonOffset, commonCount;
  std::uint32_t personalityOffset, personalityCount, indexOffset, indexCount;
};

struct IndexEntry {
  std::uint32_t function, page, dataOffset;
};

struct DataEntry {
  std::uint32_t function, data;
};

struct Function {
  std::uint32_t offset, encoding, data;
};

constexpr std::uint32_t kHasData = 0x40000000;

const std::uint8_t *theInfo;

template <typename T>
const T *InfoAt(std::uint32_t offset) {
  return reinterpret_cast<const T *>(theInfo + offset);
}

// A second-level page has complete entries, or entries that share encodings.
void ReadPage(const UnwindHeader &header, const IndexEntry &index,
              std::vector<Function> *functions) {
  constexpr std::uint32_t kCompressed = 3;
  const auto *counts = InfoAt<std::uint16_t>(index.page + 4);
  const std::uint32_t first = index.page + counts[0];
  if (*InfoAt<std::uint32_t>(index.page) != kCompressed) {
    const auto *entries = InfoAt<std::uint32_t>(first);
    for (int i = 0; i < counts[1]; ++i) {
      functions->push_back({entries[2 * i], entries[2 * i + 1], 0});
    }
    return;
  }
  const auto *entries = InfoAt<std::uint32_t>(first);
  const auto *common = InfoAt<std::uint32_t>(header.commonOffset);
  const auto *own = InfoAt<std::uint32_t>(index.page + counts[2]);
  for (int i = 0; i < counts[1]; ++i) {
    const std::uint32_t which = entries[i] >> 24;
    functions->push_back({index.function + (entries[i] & 0xFFFFFF),
                          which < header.commonCount
                              ? common[which]
                              : own[which - header.commonCount],
                          0});
  }
}

std::vector<Function> ReadFunctions(const UnwindHeader &header) {
  std::vector<Function> functions;
  const auto *index = InfoAt<IndexEntry>(header.indexOffset);
  for (std::uint32_t i = 0; i + 1 < header.indexCount; ++i) {
    if (index[i].page != 0) ReadPage(header, index[i], &functions);
  }
  const auto &last = index[header.indexCount - 1];
  std::map<std::uint32_t, std::uint32_t> data;
  for (auto at = index[0].dataOffset; at < last.dataOffset;
       at += sizeof(DataEntry)) {
    const auto *entry = InfoAt<DataEntry>(at);
    data[entry->function] = entry->data;
  }
  for (Function &function : functions) {
    if ((function.encoding & kHasData) != 0) {
      function.data = data[function.offset];
    }
  }
  functions.push_back({last.function, 0, 0});
  return functions;
}

// Writes call frame information.
class Frames {
 public:
  template <typename T>
  void Add(T value) {
    const auto *raw = reinterpret_cast<const std::uint8_t *>(&value);
    bytes_.insert(bytes_.end(), raw, raw + sizeof value);
  }
  void Add(std::initializer_list<int> values) {
    for (const int value : values) Add(static_cast<std::uint8_t>(value));
  }
  std::size_t Begin() {
    Add(std::uint32_t{0});
    return bytes_.size();
  }
  void End(std::size_t begin) {
    while (bytes_.size() % 8 != 4) bytes_.push_back(0);
    const auto size = static_cast<std::uint32_t>(bytes_.size() - begin);
    std::memcpy(&bytes_[begin - 4], &size, sizeof size);
  }
  std::size_t size() const { return bytes_.size(); }
  std::uint8_t *Finished() {
    Add(std::uint32_t{0});
    return bytes_.data();
  }

 private:
  std::vector<std::uint8_t> bytes_;
};

// Writes the common part for all functions with one personality.
std::size_t AddShared(Frames *frames, void *personality) {
  const std::size_t begin = frames->Begin();
  frames->Add(std::uint32_t{0});
  frames->Add({1, 'z'});
  if (personality != nullptr) frames->Add({'P', 'L'});
  // The alignment factors are 1 and -8. The return address is register 16.
  frames->Add({'R', 0, 1, 0x78, 16});
  if (personality != nullptr) {
    frames->Add({11, 0});
    frames->Add(personality);
    frames->Add({0, 0});
  } else {
    frames->Add({1, 0});
  }
  frames->End(begin);
  return begin - 4;
}

// Writes how the registers of the caller are found. Returns false if the
// encoding is of another kind.
bool AddRules(Frames *frames, std::uint32_t encoding) {
  constexpr int kRegisters[] = {0, 3, 12, 13, 14, 15};  // rbx, r12 to r15
  const std::uint32_t mode = (encoding >> 24) & 0xF;
  const int number = static_cast<int>((encoding >> 16) & 0xFF);
  if (mode == 1) {
    // rbp contains the address of the frame. The saved registers are next to
    // it.
    frames->Add({0x0C, 6, 16, 0x80 | 6, 2, 0x80 | 16, 1});
    for (int i = 0; i < 5; ++i) {
      const std::uint32_t kept = (encoding >> (3 * i)) & 7;
      if (kept == 0 || kept > 5) continue;
      frames->Add({0x80 | kRegisters[kept], 2 + number - i});
    }
    return true;
  }
  // A frame of fixed size without saved registers.
  if (mode == 2 && (encoding & 0x1C00) == 0 && number < 16) {
    frames->Add({0x0C, 7, number * 8, 0x80 | 16, 1});
    return true;
  }
  return false;
}

}  // namespace

void RegisterUnwindInfo(const Image &image) {
  const auto section = image.Row<std::uint8_t>("__unwind_info");
  if (section.empty()) return;
  theInfo = section.data();
  const auto &header = *InfoAt<UnwindHeader>(0);
  auto *frames = new Frames;
  std::vector<std::size_t> shared{AddShared(frames, nullptr)};
  for (std::uint32_t i = 0; i < header.personalityCount; ++i) {
    const auto slot = InfoAt<std::uint32_t>(header.personalityOffset)[i];
    shared.push_back(
        AddShared(frames, *reinterpret_cast<void **>(image.base + slot)));
  }
  const std::vector<Function> functions = ReadFunctions(header);
  for (std::size_t i = 0; i + 1 < functions.size(); ++i) {
    const Function &function = functions[i];
    Frames rules;
    if (!AddRules(&rules, function.encoding)) continue;
    const std::uint32_t personality = (function.encoding >> 28) & 3;
    const std::size_t begin = frames->Begin();
    frames->Add(static_cast<std::uint32_t>(begin - shared.at(personality)));
    frames->Add(image.base + function.offset);
    frames->Add(
        static_cast<std::uint64_t>(functions[i + 1].offset - function.offset));
    if (personality != 0) {
      frames->Add({8});
      frames->Add(function.data == 0 ? nullptr : image.base + function.data);
    } else {
      frames->Add({0});
    }
    AddRules(frames, function.encoding);
    frames->End(begin);
  }
  __register_frame(frames->Finished());
  const auto described = image.Row<std::uint8_t>("__eh_frame");
  if (!described.empty()) __register_frame(described.data());
}

}  // namespace ztk::loader
