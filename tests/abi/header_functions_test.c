/* SPDX-License-Identifier: MIT */
/*
 * A C program that takes the address of every function of the headers. It can
 * be linked only if the library has all functions. It also calls some of them
 * without a mixer.
 */
#include <ZTKFunc.h>
#include <ZTKOutcome.h>
#include <stddef.h>
#include <stdio.h>
#include <string.h>

typedef void (*AnyFunction)(void);

struct Function {
  const char *name;
  AnyFunction address;
};

/* clang-format off */
#define FUNCTION(function) {#function, (AnyFunction)(function)}
static const struct Function kFunctions[] = {
    FUNCTION(ZTK_GetProductId),
    FUNCTION(ZTK_IsUSBConnection),
    FUNCTION(ZTK_GetPkgVersionText),
    FUNCTION(ZTK_GetDriverVersionText),
    FUNCTION(ZTK_GetUtilityVersionText),
    FUNCTION(ZTK_GetLibraryVersionText),
    FUNCTION(ZTK_GetNumOfInputAudioIndex),
    FUNCTION(ZTK_GetUSBInputAudioText),
    FUNCTION(ZTK_SetUSBInputAudio),
    FUNCTION(ZTK_SetUSBInputAudioDirect),
    FUNCTION(ZTK_GetCurrentUSBInputAudioIndex),
    FUNCTION(ZTK_SetCurrentUSBInputAudio),
    FUNCTION(ZTK_GetWarningTextForSetUSBAudioInput),
    FUNCTION(ZTK_GetNumOfOutputAudioIndex),
    FUNCTION(ZTK_GetUSBOutputAudioText),
    FUNCTION(ZTK_SetUSBOutputAudio),
    FUNCTION(ZTK_SetUSBOutputAudioDefault),
    FUNCTION(ZTK_GetCurrentUSBOutputAudioIndex),
    FUNCTION(ZTK_SetCurrentUSBOutputAudio),
    FUNCTION(ZTK_GetNumOfBoostLevelIndex),
    FUNCTION(ZTK_GetBoostLevelText),
    FUNCTION(ZTK_SetBoostLevelIndex),
    FUNCTION(ZTK_GetCurrentBoostLevelIndex),
    FUNCTION(ZTK_SetCurrentBoostLevelIndex),
    FUNCTION(ZTK_GetNumOfMidiChannelIndex),
    FUNCTION(ZTK_GetMidiChannelText),
    FUNCTION(ZTK_SetMidiChannelIndex),
    FUNCTION(ZTK_GetCurrentMidiChannelIndex),
    FUNCTION(ZTK_SetCurrentMidiChannelIndex),
    FUNCTION(ZTK_GetNumOfMidiKeyModeIndex),
    FUNCTION(ZTK_GetMidiKeyModeText),
    FUNCTION(ZTK_SetMidiKeyModeIndex),
    FUNCTION(ZTK_GetCurrentMidiKeyModeIndex),
    FUNCTION(ZTK_SetCurrentMidiKeyModeIndex),
    FUNCTION(ZTK_GetMixerCertifyLevel),
    FUNCTION(ZTK_GetFirmwareVersionIndex),
    FUNCTION(ZTK_GetMixerInputSelectorStatus),
    FUNCTION(ZTK_GetMixerSeratoActiveStatus),
    FUNCTION(ZTK_RegisterInputAudioChangedCallback),
    FUNCTION(ZTK_UnregisterInputAudioChangedCallback),
    FUNCTION(ZTK_RegisterOutputAudioChangedCallback),
    FUNCTION(ZTK_UnregisterOutputAudioChangedCallback),
    FUNCTION(ZTK_RegisterBoostLevelChangedCallback),
    FUNCTION(ZTK_UnregisterBoostLevelChangedCallback),
    FUNCTION(ZTK_RegisterMidiChannelChangedCallback),
    FUNCTION(ZTK_UnregisterMidiChannelChangedCallback),
    FUNCTION(ZTK_RegisterMidiKeyModeChangedCallback),
    FUNCTION(ZTK_UnregisterMidiKeyModeChangedCallback),
    FUNCTION(ZTK_GetLastOutcome),
};
/* clang-format on */

static int failures = 0;

static void Expect(const char *what, uint32_t found, uint32_t expected) {
  if (found == expected) return;
  printf("%s is %u, expected %u\n", what, (unsigned)found, (unsigned)expected);
  ++failures;
}

static void CheckCodes(void) {
  Expect("ZTK_SUCCESS", ZTK_SUCCESS, 100);
  Expect("ZTK_WARNING", ZTK_WARNING, 101);
  Expect("ZTK_REJECTED", ZTK_REJECTED, 102);
  Expect("ZTK_CONNECTED", ZTK_CONNECTED, 103);
  Expect("ZTK_NOT_CONNECTED", ZTK_NOT_CONNECTED, 104);
  Expect("the size of a result", (uint32_t)sizeof(ZTKResult), 4);
  Expect("the major version", ZTK_VERSION_MAJOR, PROJECT_VERSION_MAJOR);
  Expect("the minor version", ZTK_VERSION_MINOR, PROJECT_VERSION_MINOR);
  Expect("the patch version", ZTK_VERSION_PATCH, PROJECT_VERSION_PATCH);
  Expect("the version", ZTK_VERSION,
         PROJECT_VERSION_MAJOR * 10000 + PROJECT_VERSION_MINOR * 100 +
             PROJECT_VERSION_PATCH);
  Expect("ZTK_PRODUCT_VRM_Q8X", ZTK_PRODUCT_VRM_Q8X, 0);
  Expect("ZTK_PRODUCT_VRM_K2", ZTK_PRODUCT_VRM_K2, 1);
  Expect("ZTK_PRODUCT_VRM_Q8S", ZTK_PRODUCT_VRM_Q8S, 2);
  Expect("ZTK_PRODUCT_VRC_H7", ZTK_PRODUCT_VRC_H7, 3);
  Expect("ZTK_PRODUCT_VRM_Q9", ZTK_PRODUCT_VRM_Q9, 4);
  Expect("ZTK_PRODUCT_VRM_L4", ZTK_PRODUCT_VRM_L4, 5);
  Expect("ZTK_PRODUCT_VRM_E3", ZTK_PRODUCT_VRM_E3, 6);
  Expect("ZTK_PRODUCT_VRM_B5", ZTK_PRODUCT_VRM_B5, 8);
  Expect("ZTK_PRODUCT_VRM_D6", ZTK_PRODUCT_VRM_D6, 10);
  Expect("ZTK_SELECTOR_POSITIONS", ZTK_SELECTOR_POSITIONS, 17);
  Expect("ZTK_SELECTOR_AUDIBLE", ZTK_SELECTOR_AUDIBLE, 4);
  Expect("the mixers of an outcome", ZTK_OUTCOME_MIXERS, 127);
  Expect("the size of an outcome", (uint32_t)sizeof(ZTKOutcome), 36 + 127 * 32);
}

static void OnChannel(int32_t channel, int32_t index, void *context) {
  (void)channel;
  (void)index;
  (void)context;
}

static void OnIndex(int32_t index, void *context) {
  (void)index;
  (void)context;
}

/* None of these calls uses a mixer, a file or the message bus. */
static void CheckCalls(void) {
  const ZTKChannelCallback onChannel = OnChannel;
  const ZTKIndexCallback onIndex = OnIndex;
  ZTKTextRef text = NULL;
  uint32_t number = 77;

  Expect("a product id", ZTK_GetProductId(ZTK_TEXT("my vrm-d6"), &number), 100);
  Expect("the product", number, 10);
  Expect("no output", ZTK_GetNumOfBoostLevelIndex(10, NULL), 102);
  Expect("a count", ZTK_GetNumOfBoostLevelIndex(10, &number), 100);
  Expect("the count", number, 4);
  Expect("a text", ZTK_GetBoostLevelText(10, 0, 0, &text), 100);
  Expect("the text is set", text != NULL, 1);
  Expect("another product",
         ZTK_RegisterInputAudioChangedCallback(8, onChannel, NULL), 102);
  Expect("no such family",
         ZTK_RegisterMidiKeyModeChangedCallback(1, onIndex, NULL), 102);
}

/* The caller may have an older or a newer header than the library. */
static void CheckSizesOfOutcome(void) {
  struct {
    ZTKOutcome known;
    uint32_t later[4];
  } newer;
  ZTKOutcome outcome;

  Expect("no outcome", ZTK_GetLastOutcome(NULL), 102);
  memset(&outcome, 0xEE, sizeof outcome);
  outcome.size = 3;
  Expect("a size that is too small", ZTK_GetLastOutcome(&outcome), 102);
  Expect("an outcome that was rejected", outcome.mixersFound, 0xEEEEEEEEu);
  outcome.size = 8;
  Expect("an older caller", ZTK_GetLastOutcome(&outcome), 100);
  Expect("its size", outcome.size, 8);
  Expect("its last member", outcome.mixersFound, 0);
  Expect("after its last member", outcome.mixersListed, 0xEEEEEEEEu);
  memset(&newer, 0xEE, sizeof newer);
  newer.known.size = sizeof newer;
  Expect("a newer caller", ZTK_GetLastOutcome(&newer.known), 100);
  Expect("a member that is not known", newer.later[3], 0);
}

int main(void) {
  size_t i;
  for (i = 0; i < sizeof kFunctions / sizeof *kFunctions; ++i) {
    if (kFunctions[i].address != NULL) continue;
    printf("%s has no address\n", kFunctions[i].name);
    ++failures;
  }
  CheckCodes();
  CheckCalls();
  CheckSizesOfOutcome();
  if (failures == 0) {
    printf("%u functions\n",
           (unsigned)(sizeof kFunctions / sizeof *kFunctions));
  }
  return failures == 0 ? 0 : 1;
}
