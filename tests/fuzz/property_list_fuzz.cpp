// SPDX-License-Identifier: MIT
//
// Reads the input as a property-list file. Then rewrites the file with one more
// entry.
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/common/pause.h"
#include "platform/property_list.h"

// No other process writes to the files of this target, so it need not wait.
void ztk::platform::Pause(std::chrono::microseconds /*time*/) {}

namespace {

using namespace ztk::platform::property_list;

constexpr const char *kKeys[] = {"a", "b", "MaxLevel", "WARNING1", ""};

void Require(bool condition) {
  if (!condition) std::abort();
}

// A temporary folder. It is in memory if possible, because every input is
// written and synced.
class Folder {
 public:
  Folder() {
    const bool inMemory = access("/dev/shm", W_OK) == 0;
    path_ = inMemory ? "/dev/shm/plist-fuzz-XXXXXX" : "/tmp/plist-fuzz-XXXXXX";
    Require(mkdtemp(path_.data()) != nullptr);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  std::string File() const { return path_ + "/file"; }

 private:
  std::string path_;
};

std::string ContentOf(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void ReadEveryKind(const Dictionary *dictionary) {
  for (const char *key : kKeys) {
    std::int32_t value = 77;
    if (!IntegerValue(dictionary, key, &value)) Require(value == 77);
    const ZTKTextRef text = TextValue(dictionary, key);
    Require(text == nullptr || TextValue(dictionary, key) == text);
  }
}

bool Rewrite(const std::string &path, std::int32_t value) {
  Dictionary *dictionary = MakeDictionary();
  AddEntriesOfFile(dictionary, path.c_str());
  SetInteger(dictionary, "Output0", value);
  const bool written = WriteAtomically(dictionary, path.c_str());
  Release(dictionary);
  return written;
}

void RequireValue(const std::string &path, std::int32_t expected) {
  Dictionary *dictionary = ReadFile(path.c_str());
  Require(dictionary != nullptr);
  std::int32_t value = 0;
  Require(IntegerValue(dictionary, "Output0", &value) && value == expected);
  Release(dictionary);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
  static const Folder folder;
  const std::string path = folder.File();
  const std::string kept = path + ".unreadable-1";
  const std::string bytes(data, data + size);
  std::ofstream(path, std::ios::binary) << bytes;

  Dictionary *dictionary = ReadFile(path.c_str());
  const bool readable = dictionary != nullptr;
  if (readable) ReadEveryKind(dictionary);
  Release(dictionary);

  constexpr std::int32_t kValue = -123456789;
  if (!Rewrite(path, kValue)) {
    // A file that would be too large to be read again is not written.
    Require(readable && ContentOf(path) == bytes);
    return 0;
  }
  RequireValue(path, kValue);
  // A readable file is kept only if a character of it was replaced.
  const bool isKept = access(kept.c_str(), F_OK) == 0;
  Require(isKept ? ContentOf(kept) == bytes : readable);
  unlink(kept.c_str());

  // Rewriting a written file does not change it.
  const std::string first = ContentOf(path);
  Require(Rewrite(path, kValue) && ContentOf(path) == first);
  return 0;
}
