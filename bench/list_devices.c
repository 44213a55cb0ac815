/* SPDX-License-Identifier: MIT
 *
 * A minimal program that lists USB devices with libusb, for comparison with
 * "ztk status".
 */
#include <libusb.h>
#include <stdio.h>

int main(void) {
  libusb_context *context = NULL;
  libusb_device **devices = NULL;
  if (libusb_init(&context) != 0) return 1;
  const ssize_t count = libusb_get_device_list(context, &devices);
  for (ssize_t i = 0; i < count; ++i) {
    struct libusb_device_descriptor descriptor;
    if (libusb_get_device_descriptor(devices[i], &descriptor) != 0) continue;
    printf("Bus %03d Device %03d: ID %04x:%04x\n",
           libusb_get_bus_number(devices[i]),
           libusb_get_device_address(devices[i]), descriptor.idVendor,
           descriptor.idProduct);
  }
  if (count >= 0) libusb_free_device_list(devices, 1);
  libusb_exit(context);
  return 0;
}
