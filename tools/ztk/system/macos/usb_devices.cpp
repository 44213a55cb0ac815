// SPDX-License-Identifier: MIT
#include "ztk/system/usb_devices.h"

namespace ztk::model {

// Class and speed are not read on this system: the registry has them in other
// properties.
std::vector<UsbDevice> UsbDevices() { return {}; }

}  // namespace ztk::model
