// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_USB_REQUESTS_H_
#define ZTK_PLATFORM_LINUX_USB_REQUESTS_H_

#include <cerrno>

#include "platform/usb.h"

namespace ztk::platform::usb {

// USB expects a device to answer a control request within 500 ms. A mixer that
// hangs must not delay the caller more than necessary.
inline constexpr unsigned kRequestTimeoutMs = 1000;

// Returns the result code for an error number of the kernel.
constexpr Code CodeOfErrno(int error) {
  switch (error) {
    case EPIPE:
      return kPipeStalled;
    case ENODEV:
    case ESHUTDOWN:
      return kNoDevice;
    case EACCES:
    case EPERM:
      return kNotPermitted;
    case ETIMEDOUT:
      return kTimeout;
    case EBUSY:
      return kBusy;
    default:
      return kError;
  }
}

}  // namespace ztk::platform::usb

#endif  // ZTK_PLATFORM_LINUX_USB_REQUESTS_H_
