// SPDX-License-Identifier: MIT
//
// The names and numbers of the models.
//
// Each family of settings has a header <family>.h in this folder. It contains
// the facts of the family: its models, its key in the settings file, its
// channels and choices, and the values that mixers receive. The programs of
// this project include these headers too, so that each fact is written once.
// The headers use only those names of the library that it exports.
#ifndef ZTK_API_PRODUCT_H_
#define ZTK_API_PRODUCT_H_

#include <cstdint>

#include "ZTKFunc.h"

namespace ztk::product {

struct Model {
  ZTKTextRef name;
  std::uint32_t id;
};

inline const ZTKTextRef kNameOfK2 = ZTK_TEXT("VRM-K2");
inline const ZTKTextRef kNameOfB5 = ZTK_TEXT("VRM-B5");
inline const ZTKTextRef kNameOfD6 = ZTK_TEXT("VRM-D6");

// ZTK_GetProductId() searches a text for these names in this order. If the text
// contains two names, the first one in this list counts. The numbers 7 and 9
// are not used.
inline const Model kModels[] = {
    {.name = ZTK_TEXT("VRM-Q8X"), .id = ZTK_PRODUCT_VRM_Q8X},
    {.name = ZTK_TEXT("VRM-K2"), .id = ZTK_PRODUCT_VRM_K2},
    {.name = ZTK_TEXT("VRM-Q8S"), .id = ZTK_PRODUCT_VRM_Q8S},
    {.name = ZTK_TEXT("VRC-H7"), .id = ZTK_PRODUCT_VRC_H7},
    {.name = ZTK_TEXT("VRM-Q9"), .id = ZTK_PRODUCT_VRM_Q9},
    {.name = ZTK_TEXT("VRM-L4"), .id = ZTK_PRODUCT_VRM_L4},
    {.name = ZTK_TEXT("VRM-E3"), .id = ZTK_PRODUCT_VRM_E3},
    {.name = ZTK_TEXT("VRM-B5"), .id = ZTK_PRODUCT_VRM_B5},
    {.name = ZTK_TEXT("VRM-D6"), .id = ZTK_PRODUCT_VRM_D6},
};

}  // namespace ztk::product

#endif  // ZTK_API_PRODUCT_H_
