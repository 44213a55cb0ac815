// SPDX-License-Identifier: MIT
//
// The virtual host controller of this machine's kernel (vhci-hcd), to whose
// ports devices that are served over USB/IP can be attached.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_USBIP_VHCI_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_USBIP_VHCI_H_

#include <string>

#include "virtual-mixer/usbip/usbip_messages.h"

namespace ztk::virtual_mixer::usbip {

inline constexpr char kVhciFolder[] = "/sys/devices/platform/vhci_hcd.0";

// Hands one end of a connection to the kernel, which keeps it, and so attaches
// the device that the other end serves. Throws std::runtime_error that says
// what is missing and what to do.
void AttachToKernel(const std::string &vhciFolder, const Export &device,
                    int socket);

}  // namespace ztk::virtual_mixer::usbip

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_VHCI_H_
