// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_FILE_DESCRIPTOR_H_
#define ZTK_PLATFORM_COMMON_FILE_DESCRIPTOR_H_

#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace ztk::platform {

// Owns a file descriptor and closes it. A number below 0 means that the object
// has no descriptor.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number = -1) : number_(number) {}
  ~FileDescriptor() { Close(); }
  FileDescriptor(FileDescriptor &&other) noexcept
      : number_(std::exchange(other.number_, -1)) {}
  FileDescriptor &operator=(FileDescriptor &&other) noexcept {
    if (this != &other) {
      Close();
      number_ = std::exchange(other.number_, -1);
    }
    return *this;
  }
  int get() const { return number_; }
  bool valid() const { return number_ >= 0; }
  void Close() {
    if (number_ >= 0) close(number_);
    number_ = -1;
  }

 private:
  int number_;
};

// Calls `write(data, size)`, for example write() or send(), until the whole
// text is written. Returns false and sets errno on an error.
template <typename Write>
bool WriteAll(std::string_view text, Write write) {
  while (!text.empty()) {
    const ssize_t written = write(text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written == 0) errno = EIO;
    if (written <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_FILE_DESCRIPTOR_H_
