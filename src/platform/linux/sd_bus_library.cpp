// SPDX-License-Identifier: MIT
#include "platform/linux/sd_bus_library.h"

#include <dlfcn.h>

#include <atomic>
#include <memory>

namespace ztk::platform::notification_center {

namespace {

// Set once, kept until the process ends. No lock: one that another thread holds
// would stay held for ever in a child.
constinit std::atomic<const SdBusFunctions *> theFunctions = nullptr;

template <typename Function>
bool Find(void *library, const char *name, Function *function) {
  *function = reinterpret_cast<Function>(dlsym(library, name));
  return *function != nullptr;
}

bool FindAll(void *library, SdBusFunctions *functions) {
#define ZTK_FIND(name) \
  if (!Find(library, #name, &functions->name)) return false;
  ZTK_FOR_EVERY_SD_BUS_FUNCTION(ZTK_FIND)
#undef ZTK_FIND
  return true;
}

// The library is never closed: connections may live as long as the process.
const SdBusFunctions *Load() {
  void *library = dlopen(kSdBusLibrary, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return nullptr;
  auto functions = std::make_unique<SdBusFunctions>();
  if (!FindAll(library, functions.get())) return nullptr;
  const SdBusFunctions *known = nullptr;
  // Another thread may have been faster.
  return theFunctions.compare_exchange_strong(known, functions.get())
             ? functions.release()
             : known;
}

}  // namespace

const char *const kSdBusLibrary = ZTK_SD_BUS_LIBRARY;

const SdBusFunctions *SdBus() {
  const SdBusFunctions *known = theFunctions.load();
  return known != nullptr ? known : Load();
}

}  // namespace ztk::platform::notification_center
