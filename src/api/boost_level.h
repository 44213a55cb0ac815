// SPDX-License-Identifier: MIT
//
// The facts of the boost level.
#ifndef ZTK_API_BOOST_LEVEL_H_
#define ZTK_API_BOOST_LEVEL_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "api/product.h"
#include "api/product_set.h"
#include "api/tables.h"
#include "usb/USB.h"

namespace ztk::boost_level {

inline constexpr std::uint32_t kProduct = ZTK_PRODUCT_VRM_D6;
// Deliberate: the choices can be listed for more products than can be set.
inline constexpr ProductSet kListedFor{ZTK_PRODUCT_VRM_Q8X, ZTK_PRODUCT_VRM_K2,
                                       ZTK_PRODUCT_VRM_L4,  ZTK_PRODUCT_VRM_E3,
                                       ZTK_PRODUCT_VRM_B5,  ZTK_PRODUCT_VRM_D6};
inline constexpr ProductSet kSettableFor{kProduct};

inline const ZTKTextRef kModel = product::kNameOfD6;
inline const ZTKTextRef kKey = ZTK_TEXT("MaxLevel");
inline constexpr std::int32_t kDefaultIndex = 3;

inline constexpr std::uint32_t kChoices = 4;

inline constexpr std::uint16_t kWriteRegister = usb::kUsbOutputLevelRegister;

// Returns the value that mixers receive: the level code is in its high byte.
// Requires an index below kChoices.
inline std::uint16_t DeviceValue(std::uint32_t index) {
  return static_cast<std::uint16_t>(_convDbTable[index] << 8);
}

// Returns whether a remembered index can be sent again. The settings file may
// contain any number.
constexpr bool CanBeResent(std::uint32_t index) { return index < kChoices; }

}  // namespace ztk::boost_level

#endif  // ZTK_API_BOOST_LEVEL_H_
