// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_COMMON_FILE_DESCRIPTOR_H_
#define ZTK_TOOLS_COMMON_FILE_DESCRIPTOR_H_

#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace ztk {

// Owns a file descriptor and closes it in the end; below 0 there is none.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number = -1) : number_(number) {}
  ~FileDescriptor() {
    if (number_ >= 0) close(number_);
  }
  FileDescriptor(FileDescriptor &&other) noexcept
      : number_(std::exchange(other.number_, -1)) {}
  FileDescriptor &operator=(FileDescriptor &&other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  int Get() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

// Calls `write(data, size)`, which is write() or send(), until the whole text
// is written. False when it fails; errno then says why.
template <typename Write>
bool WriteAll(std::string_view text, Write write) {
  while (!text.empty()) {
    const ssize_t written = write(text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace ztk

#endif  // ZTK_TOOLS_COMMON_FILE_DESCRIPTOR_H_
