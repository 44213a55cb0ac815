// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_DESCRIPTOR_H_
#define ZTK_PLATFORM_COMMON_DESCRIPTOR_H_

#include <unistd.h>

#include <utility>

namespace ztk::platform {

// Owns a file descriptor and closes it. A number below 0 means that there is
// none.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  ~Descriptor() { Close(); }
  Descriptor(Descriptor &&other) noexcept
      : number_(std::exchange(other.number_, -1)) {}
  Descriptor &operator=(Descriptor &&other) noexcept {
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

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_DESCRIPTOR_H_
