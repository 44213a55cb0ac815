/* SPDX-License-Identifier: MIT
 *
 *   read_status [once]
 *
 * The smallest program that shows what "ztk status" shows. It reads the
 * identity of every device once to count the mixers, and once more for each
 * mixer to find it. Then it reads four registers of each mixer, and the
 * settings files. It prints the registers as raw bytes, and the number of each
 * setting. With "once" it walks over the devices a single time, and reads the
 * registers of each mixer as soon as it is found.
 *
 * It decodes the settings files with libplist, as the library does. Without
 * DECODES_SETTINGS it links only the C library, and prints the length of each
 * file.
 */
#include <dirent.h>
#include <fcntl.h>
#include <inttypes.h>
#include <linux/usbdevice_fs.h>
#ifdef DECODES_SETTINGS
#include <plist/plist.h>
#endif
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ioctl.h>
#include <unistd.h>

enum { kDescriptor = 18, kProduct = 27, kTimeoutMs = 5000, kPath = 512 };
enum {
  kFirmware = 0x8001,
  kSelectors = 0x8002,
  kSerato = 0x8004,
  kCertifyLevel = 0x8007
};

static const char kDevices[] = "/sys/bus/usb/devices";

static ssize_t ReadFile(const char *path, void *bytes, size_t size) {
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  if (file < 0) return -1;
  const ssize_t got = read(file, bytes, size);
  close(file);
  return got;
}

static void Ask(int node, unsigned short index, unsigned short length) {
  unsigned char reply[8] = {0};
  struct usbdevfs_ctrltransfer transfer;
  memset(&transfer, 0, sizeof transfer);
  transfer.bRequestType = 0xC0;
  transfer.wIndex = index;
  transfer.wLength = length;
  transfer.timeout = kTimeoutMs;
  transfer.data = reply;
  if (ioctl(node, USBDEVFS_CONTROL, &transfer) < 0) return;
  printf(" %04x:", index);
  for (int i = 0; i < length; ++i) printf(" %02x", reply[i]);
}

static void ShowMixer(const char *name) {
  char path[kPath];
  char number[16] = {0};
  char product[128] = {0};
  snprintf(path, sizeof path, "%s/%s/devnum", kDevices, name);
  if (ReadFile(path, number, sizeof number - 1) <= 0) return;
  snprintf(path, sizeof path, "/dev/bus/usb/%03d/%03d", atoi(name),
           atoi(number));
  const int node = open(path, O_RDWR | O_CLOEXEC);
  if (node < 0) return;
  snprintf(path, sizeof path, "%s/%s/product", kDevices, name);
  (void)!ReadFile(path, product, sizeof product - 1);
  printf("mixer %s %s:", name, product);
  Ask(node, kFirmware, 2);
  Ask(node, kCertifyLevel, 4);
  Ask(node, kSelectors, 5);
  Ask(node, kSerato, 2);
  printf("\n");
  close(node);
}

#ifdef DECODES_SETTINGS
static void ShowNumbers(const char *model, const char *text, uint32_t length) {
  plist_t settings = NULL;
  if (length >= 6 && memcmp(text, "bplist", 6) == 0) {
    plist_from_bin(text, length, &settings);
  } else {
    plist_from_xml(text, length, &settings);
  }
  plist_dict_iter place = NULL;
  plist_dict_new_iter(settings, &place);
  for (;;) {
    char *key = NULL;
    plist_t value = NULL;
    uint64_t number = 0;
    plist_dict_next_item(settings, place, &key, &value);
    if (value == NULL) break;
    plist_get_uint_val(value, &number);
    printf("%s %s: %" PRIu64 "\n", model, key, number);
    free(key);
  }
  free(place);
  plist_free(settings);
}
#endif

static void ShowSettings(const char *model) {
  char path[kPath];
  char text[4096];
  const char *home = getenv("HOME");
  snprintf(path, sizeof path,
           "%s/.config/tarvix/Preferences/com.tarvix.%sautosetup.plist",
           home != NULL ? home : "", model);
  const ssize_t length = ReadFile(path, text, sizeof text);
  if (length <= 0) return;
#ifdef DECODES_SETTINGS
  ShowNumbers(model, text, (uint32_t)length);
#else
  printf("%s: %zd bytes\n", model, length);
#endif
}

enum { kCountOnly = -1, kShowAll = -2 };

/* Counts the mixers. Shows the mixer at position `shown`, or all of them for
 * kShowAll, or none for kCountOnly. */
static int Walk(int shown) {
  DIR *directory = opendir(kDevices);
  if (directory == NULL) exit(1);
  int mixers = 0;
  const struct dirent *entry;
  while ((entry = readdir(directory)) != NULL) {
    char path[kPath];
    unsigned char bytes[kDescriptor];
    if (entry->d_name[0] == '.' || strchr(entry->d_name, ':') != NULL) continue;
    snprintf(path, sizeof path, "%s/%s/descriptors", kDevices, entry->d_name);
    if (ReadFile(path, bytes, sizeof bytes) != kDescriptor) continue;
    if ((bytes[8] | bytes[9] << 8) != VENDOR_ID || bytes[10] != kProduct) {
      continue;
    }
    if (shown == kShowAll || shown == mixers) ShowMixer(entry->d_name);
    ++mixers;
  }
  closedir(directory);
  return mixers;
}

int main(int argc, char **argv) {
  if (argc > 1 && strcmp(argv[1], "once") == 0) {
    Walk(kShowAll);
  } else {
    const int mixers = Walk(kCountOnly);
    for (int i = 0; i < mixers; ++i) Walk(i);
  }
  ShowSettings("VRM-D6");
  ShowSettings("VRM-B5");
  ShowSettings("VRM-K2");
  return 0;
}
