// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_DESCRIPTOR_H_
#define ZTK_PLATFORM_COMMON_DESCRIPTOR_H_

#include <unistd.h>

namespace ztk::platform {

// A file descriptor that closes itself; below 0 is none.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor &) = delete;
  Descriptor &operator=(const Descriptor &) = delete;
  int get() const { return number_; }
  bool valid() const { return number_ >= 0; }

 private:
  int number_;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_DESCRIPTOR_H_
