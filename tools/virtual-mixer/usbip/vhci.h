// SPDX-License-Identifier: MIT
//
// The virtual host controller of the kernel (vhci-hcd). Devices that are served
// over USB/IP can be attached to its ports.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_USBIP_VHCI_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_USBIP_VHCI_H_

#include <string>

#include "virtual-mixer/usbip/usbip_messages.h"

namespace ztk::virtual_mixer::usbip {

inline constexpr char kVhciFolder[] = "/sys/devices/platform/vhci_hcd.0";

// Attaches the device that is served at the other end of the socket: the kernel
// takes the socket over. Throws std::runtime_error with what is missing and
// what to do.
void AttachToKernel(const std::string &vhciFolder, const Export &device,
                    int socket);

}  // namespace ztk::virtual_mixer::usbip

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_VHCI_H_
