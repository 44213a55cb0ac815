// SPDX-License-Identifier: MIT
#include <cstdint>

#include "ZTKFunc.h"
#include "platform/text.h"
#include "usb/USB.h"

using namespace ztk;

namespace {

struct Model {
  ZTKTextRef searchText;
  std::uint32_t id;
};

// In search order: of two models in one name, the upper one counts. The ids
// have gaps at 7 and 9.
const Model kModels[] = {
    {.searchText = ZTK_TEXT("VRM-Q8X"), .id = 0},
    {.searchText = ZTK_TEXT("VRM-K2"), .id = 1},
    {.searchText = ZTK_TEXT("VRM-Q8S"), .id = 2},
    {.searchText = ZTK_TEXT("VRC-H7"), .id = 3},
    {.searchText = ZTK_TEXT("VRM-Q9"), .id = 4},
    {.searchText = ZTK_TEXT("VRM-L4"), .id = 5},
    {.searchText = ZTK_TEXT("VRM-E3"), .id = 6},
    {.searchText = ZTK_TEXT("VRM-B5"), .id = 8},
    {.searchText = ZTK_TEXT("VRM-D6"), .id = 10},
};

}  // namespace

ZTKResult ZTK_GetProductId(ZTKTextRef name, uint32_t *outId) {
  if (name == nullptr || outId == nullptr) return ZTK_REJECTED;

  const platform::text::Made upper(platform::text::UpperCase(name));
  for (const Model &model : kModels) {
    if (!platform::text::Contains(upper.get(), model.searchText)) continue;
    *outId = model.id;
    return ZTK_SUCCESS;
  }
  return ZTK_REJECTED;
}

ZTKResult ZTK_IsUSBConnection(uint32_t productId) {
  return CheckUSBAudio(productId) > 0 ? ZTK_CONNECTED : ZTK_NOT_CONNECTED;
}
