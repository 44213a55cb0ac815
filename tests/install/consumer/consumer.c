/* SPDX-License-Identifier: MIT
 *
 * A C program that uses the library. Exits with 0 when the results are as
 * documented; with an argument it prints the warning text for channel 0.
 */
#include <ZTKFunc.h>
#include <stdio.h>
#include <string.h>

int main(int argc, char **argv) {
  uint32_t product = 0;
  ZTKTextRef text = NULL;
  (void)argv;

  if (ZTK_GetProductId(ZTK_TEXT("Tarvix VRM-D6"), &product) != ZTK_SUCCESS) {
    return 1;
  }
  if (product != 10) return 2;
  if (ZTK_GetUSBInputAudioText(product, 4, 0, 0, &text) != ZTK_SUCCESS) {
    return 3;
  }
  if (strcmp(text, "REC OUT") != 0) return 4;

  if (argc > 1) {
    if (ZTK_GetWarningTextForSetUSBAudioInput(product, 0, ZTK_WARNING, 99,
                                              &text) != ZTK_SUCCESS ||
        text == NULL) {
      return 5;
    }
    puts(text);
  }
  return 0;
}
