/* SPDX-License-Identifier: MIT */
/*
 * A program that defines functions with the same names as exported functions of
 * the library. The program calls its own functions, and the library still calls
 * the functions of the library.
 */
#ifndef _DEFAULT_SOURCE
#define _DEFAULT_SOURCE 1 /* mkdtemp(), setenv() */
#endif
#include <ZTKFunc.h>
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

static int ownCalls = 0;

ZTK_EXPORT int32_t CheckUSBAudio(uint32_t productId);
ZTK_EXPORT uint32_t openUSB(void **slot, uint32_t index);
ZTK_EXPORT void closeUSB(void **slot);
ZTK_EXPORT uint32_t DeviceRequest(void *device, uint8_t requestType,
                                  uint8_t request, uint16_t value,
                                  uint16_t index, void *data, uint16_t *length);
ZTK_EXPORT uint32_t SetUSBOutputLevelSetting(void *device, uint16_t value);
/* This function is the one of the library. */
extern uint32_t open_pipes(void **slot, uint32_t index);

/* Returns a count above 0, so that the library would also call the others. */
int32_t CheckUSBAudio(uint32_t productId) {
  ++ownCalls;
  return productId == 10 ? 2 : 1;
}

uint32_t openUSB(void **slot, uint32_t index) {
  ++ownCalls;
  *slot = NULL;
  return index;
}

void closeUSB(void **slot) {
  ++ownCalls;
  *slot = NULL;
}

uint32_t DeviceRequest(void *device, uint8_t requestType, uint8_t request,
                       uint16_t value, uint16_t index, void *data,
                       uint16_t *length) {
  ++ownCalls;
  (void)device;
  (void)data;
  (void)length;
  return (uint32_t)(requestType + request + value + index);
}

uint32_t SetUSBOutputLevelSetting(void *device, uint16_t value) {
  ++ownCalls;
  (void)device;
  return value;
}

static int failures = 0;

static void Expect(const char *what, int holds) {
  if (holds) return;
  printf("not true: %s\n", what);
  ++failures;
}

/* The loader must find the functions of the program first. Otherwise the test
 * would not show anything. */
static void CheckThatTheOwnFunctionsComeFirst(void) {
  union {
    void *object;
    uint32_t (*function)(void **slot, uint32_t index);
  } found;
  found.object = dlsym(RTLD_DEFAULT, "openUSB");
  Expect("the loader finds the program's openUSB", found.function == openUSB);
}

static void CheckTheLibrary(const char *home) {
  char file[300];
  struct stat status;
  void *slot = &slot;
  const ZTKResult connection = ZTK_IsUSBConnection(10);

  Expect("the connection is tested",
         connection == ZTK_CONNECTED || connection == ZTK_NOT_CONNECTED);
  Expect("a boost level is set", ZTK_SetBoostLevelIndex(10, 2) == 100);
  Expect("no mixer has a position like this",
         open_pipes(&slot, 0xFFFFFFFE) == 0xE00002BC && slot == NULL);
  Expect("the library called no function of the program", ownCalls == 0);

  snprintf(file, sizeof file,
           "%s/.config/tarvix/Preferences/com.tarvix.VRM-D6autosetup.plist",
           home);
  Expect("the boost level is remembered", stat(file, &status) == 0);
  unlink(file);
}

static void RemoveHome(const char *home) {
  static const char *const kFolders[] = {"/.config/tarvix/Preferences",
                                         "/.config/tarvix", "/.config", ""};
  char folder[300];
  size_t i;
  for (i = 0; i < sizeof kFolders / sizeof *kFolders; ++i) {
    snprintf(folder, sizeof folder, "%s%s", home, kFolders[i]);
    rmdir(folder);
  }
}

int main(void) {
  const char *temporary = getenv("TMPDIR");
  char home[200];
  snprintf(home, sizeof home, "%s/ztkXXXXXX",
           temporary != NULL ? temporary : "/tmp");
  if (mkdtemp(home) == NULL) return 2;
  setenv("HOME", home, 1);
  unsetenv("XDG_CONFIG_HOME");
  /* The change must not be announced in the session of the user. */
  setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);

  CheckThatTheOwnFunctionsComeFirst();
  CheckTheLibrary(home);
  RemoveHome(home);
  return failures == 0 ? 0 : 1;
}
