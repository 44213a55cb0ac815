// SPDX-License-Identifier: MIT
#include "api/product.h"

#include <cstdint>

#include "ZTKFunc.h"
#include "platform/text.h"
#include "usb/mixers.h"

using namespace ztk;
using ztk::product::kModels;
using ztk::product::Model;

ZTKResult ZTK_GetProductId(ZTKTextRef name, uint32_t *outId) {
  if (name == nullptr || outId == nullptr) return ZTK_REJECTED;

  const platform::text::OwnedText upper(platform::text::UpperCase(name));
  for (const Model &model : kModels) {
    if (!platform::text::Contains(upper.get(), model.name)) continue;
    *outId = model.id;
    return ZTK_SUCCESS;
  }
  return ZTK_REJECTED;
}

ZTKResult ZTK_IsUSBConnection(uint32_t productId) {
  outcome::Begin();
  return usb::CountMixers(productId) > 0 ? ZTK_CONNECTED : ZTK_NOT_CONNECTED;
}
