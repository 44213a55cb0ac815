/* SPDX-License-Identifier: MIT */
/*
 * A program that loads the library, registers a callback and closes the
 * library. The event loop may call the observer until the process ends, so the
 * code of the library must stay loaded.
 */
#ifndef _DEFAULT_SOURCE
#define _DEFAULT_SOURCE 1 /* setenv() */
#endif
#include <ZTKFunc.h>
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

typedef ZTKResult (*RegisterFunction)(uint32_t productId,
                                      ZTKIndexCallback callback, void *context);
typedef ZTKResult (*ConnectionFunction)(uint32_t productId);

static int failures = 0;

static void Expect(const char *what, int holds) {
  if (holds) return;
  printf("not true: %s\n", what);
  ++failures;
}

static void OnIndex(int32_t index, void *context) {
  (void)index;
  (void)context;
}

static int IsMapped(const char *part) {
  char line[1024];
  int found = 0;
  FILE *maps = fopen("/proc/self/maps", "r");
  if (maps == NULL) return 0;
  while (fgets(line, sizeof line, maps) != NULL) {
    if (strstr(line, part) != NULL) found = 1;
  }
  fclose(maps);
  return found;
}

/* ISO C does not allow a cast from an object pointer to a function pointer. */
static RegisterFunction FindRegister(void *library) {
  RegisterFunction function;
  void *found = dlsym(library, "ZTK_RegisterBoostLevelChangedCallback");
  memcpy(&function, &found, sizeof function);
  return function;
}

static ConnectionFunction FindConnection(void *library) {
  ConnectionFunction function;
  void *found = dlsym(library, "ZTK_IsUSBConnection");
  memcpy(&function, &found, sizeof function);
  return function;
}

int main(int argc, char **argv) {
  void *library;
  void *observer;
  ConnectionFunction isConnected;
  int context = 0;
  if (argc != 2) return 2;
  setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);

  Expect("the library is not loaded yet", !IsMapped("libZTKFunc.so"));
  library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  if (library == NULL) {
    printf("%s\n", dlerror());
    return 1;
  }
  isConnected = FindConnection(library);
  Expect("a callback is registered",
         FindRegister(library)(10, OnIndex, &context) == ZTK_SUCCESS);
  observer = *(void **)dlsym(library, "_ZTKFunc");
  Expect("an observer is made", observer != NULL);
  Expect("the library can be closed", dlclose(library) == 0);

  Expect("the code is still loaded", IsMapped("libZTKFunc.so"));
  if (failures == 0) {
    const ZTKResult connection = isConnected(10);
    Expect("the code can be called",
           connection == ZTK_CONNECTED || connection == ZTK_NOT_CONNECTED);
  }

  library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  Expect("opening the library again returns the same library",
         library != NULL && FindConnection(library) == isConnected &&
             *(void **)dlsym(library, "_ZTKFunc") == observer);
  return failures == 0 ? 0 : 1;
}
