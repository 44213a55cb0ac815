/* SPDX-License-Identifier: MIT */
/**
 * @file ZTKFunc.h
 * Settings of the USB DJ mixer VRM-D6 and its sister models.
 *
 * A setter sends the new value to every attached mixer, stores it in a settings
 * file of the user (a property list) and announces the change to every process
 * of the user's session. The function that gets a current value reads it from
 * that file, and the function that sets a current value sends it from there to
 * the mixers again. Status queries ask the mixers.
 *
 * **Results.** Every function returns one of the ZTKResult codes below. The
 * comment of a function lists them in the order in which they are tested. Where
 * a function returns 102, it sends, stores and announces nothing, and outputs
 * keep their value, unless its comment says otherwise.
 *
 * **Failures below the interface do not change the result.** If a mixer cannot
 * be opened or refuses a request, a settings file cannot be written, or the
 * session has no message bus, the function makes its other steps, and its
 * result is the same as without the failure. ZTK_GetLastOutcome() in
 * ZTKOutcome.h reports such failures.
 *
 * **Duration.** A function returns when all mixers have answered. On Linux each
 * request to a mixer is given up after 1 second. A setter makes one request to
 * each mixer; the setters of USB input and output audio make two. A status
 * query makes one. A setter also waits up to 1 second while another program
 * changes the same settings, and up to 1 second more if that program replaces
 * the file first; up to 1 second for a message bus that does not respond; and,
 * like a getter, up to half a second for a settings file that another program
 * is copying over or that was damaged a moment ago. An input setter with three
 * mixers that do not answer therefore needs about 6 seconds; with mixers that
 * answer, a call needs some milliseconds. On macOS the system decides how long
 * a request may take.
 *
 * **Threads.** The library starts no threads and takes no locks. Functions
 * whose comment says so may be called from any thread at any time. Of all
 * others, at most one may run at a time in a process. Breaking this rule
 * damages memory: for example, two setters that run at the same time free the
 * record of the last announcement twice, and the process crashes, perhaps much
 * later.
 *
 * **Callbacks** run on an event loop, and never while no loop runs:
 * - On Linux on the GLib main context that is the thread default of the thread
 *   that registers, or on the global default context if it has none. A worker
 *   thread pushes a context of its own before it registers
 *   (g_main_context_push_thread_default()).
 * - On macOS always on the run loop of the main thread, because the system
 *   delivers distributed notifications on this thread.
 *
 * **Memory.** The library frees the memory that it allocates. The caller must
 * not free texts; see ZTKTextRef. If memory runs out, this is a failure below
 * the interface like the others.
 */
#ifndef ZTKFUNC_H_
#define ZTKFUNC_H_

#include <stdint.h>

#if defined(__APPLE__)
#include <CoreFoundation/CoreFoundation.h>
#endif

#if defined(__GNUC__)
#define ZTK_EXPORT __attribute__((visibility("default")))
#else
#define ZTK_EXPORT
#endif

/**
 * @defgroup version Version of this header
 * @{
 */

/** Grows when something is removed or changed; part of the library's name. */
#define ZTK_VERSION_MAJOR 1
/** Grows when something is added. */
#define ZTK_VERSION_MINOR 0
/** Grows with corrections. */
#define ZTK_VERSION_PATCH 0
/** The whole version as one number for comparisons: 1.2.3 is 10203. */
#define ZTK_VERSION \
  (ZTK_VERSION_MAJOR * 10000 + ZTK_VERSION_MINOR * 100 + ZTK_VERSION_PATCH)
/** @} */

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup results Result codes
 * @{
 */

/** The result of every function: one of these five codes. */
typedef uint32_t ZTKResult;

/**
 * The call succeeded. Queries also return it if no mixer is attached; their
 * comments describe the output in that case.
 */
#define ZTK_SUCCESS 100u
/**
 * Success with a warning: no mixer is attached, or the input selector of the
 * channel is in a position in which the new routing cannot be heard. Only
 * ZTK_SetUSBInputAudio() and ZTK_SetUSBInputAudioDirect() return it.
 */
#define ZTK_WARNING 101u
/**
 * The call was rejected: an argument is null or out of range, the function does
 * not serve the product, or a name contains no model. Some functions also
 * reject values that they read from a file or a mixer; their comments say so.
 */
#define ZTK_REJECTED 102u
/** At least one mixer is attached; only ZTK_IsUSBConnection() returns it. */
#define ZTK_CONNECTED 103u
/** No mixer is attached; only ZTK_IsUSBConnection() returns it. */
#define ZTK_NOT_CONNECTED 104u
/** @} */

/**
 * @defgroup types Texts and callbacks
 * @{
 */

#if defined(__APPLE__)
/**
 * A text. A constant of the library is valid until the process ends. A text
 * that was read from a file belongs to the dictionary or bundle that it comes
 * from: retain it to keep it beyond the current autorelease pool. Never release
 * a text that you did not retain.
 */
typedef CFStringRef ZTKTextRef;
/** Makes a ZTKTextRef from a string literal. */
#define ZTK_TEXT(literal) CFSTR(literal)
#else
/**
 * A text in UTF-8 that ends with a zero byte. A text that the library returns
 * stays valid until the process ends; never free it. A text that is passed to
 * the library is only read during the call.
 */
typedef const char *ZTKTextRef;
/** Makes a ZTKTextRef from a string literal. */
#define ZTK_TEXT(literal) (literal)
#endif

/**
 * Called when a routing changes in any process.
 *
 * @param channel  Channel that changed, counted from 0.
 * @param index    Its new choice, counted from 0.
 * @param context  The pointer that was passed when registering.
 */
typedef void (*ZTKChannelCallback)(int32_t channel, int32_t index,
                                   void *context);

/**
 * Called when a setting that has no channels changes in any process.
 *
 * @param index    The new choice, counted from 0.
 * @param context  The pointer that was passed when registering.
 */
typedef void (*ZTKIndexCallback)(int32_t index, void *context);
/** @} */

/**
 * @defgroup product Product and connection
 * Numbers of the models, and whether a mixer is attached.
 *
 * The models are 0 VRM-Q8X, 1 VRM-K2, 2 VRM-Q8S, 3 VRC-H7, 4 VRM-Q9, 5 VRM-L4,
 * 6 VRM-E3, 8 VRM-B5 and 10 VRM-D6; the numbers 7 and 9 are not used. Functions
 * take the number of a model as productId and reject models that they do not
 * serve. productId does not select mixers: every function uses all attached
 * mixers. These have the maker's USB vendor id and the USB product id 27, which
 * is the same for all models.
 * @{
 */

/** VRM-Q8X. */
#define ZTK_PRODUCT_VRM_Q8X 0u
/** VRM-K2: the model of the MIDI channel. */
#define ZTK_PRODUCT_VRM_K2 1u
/** VRM-Q8S. */
#define ZTK_PRODUCT_VRM_Q8S 2u
/** VRC-H7. */
#define ZTK_PRODUCT_VRC_H7 3u
/** VRM-Q9. */
#define ZTK_PRODUCT_VRM_Q9 4u
/** VRM-L4. */
#define ZTK_PRODUCT_VRM_L4 5u
/** VRM-E3. */
#define ZTK_PRODUCT_VRM_E3 6u
/** VRM-B5: the model of USB output audio. */
#define ZTK_PRODUCT_VRM_B5 8u
/** VRM-D6: the model of everything else. */
#define ZTK_PRODUCT_VRM_D6 10u

/**
 * Finds the number of the model whose name is part of another name.
 *
 * The model may be anywhere in the name, in upper or lower case. If a name
 * contains two models, the one that comes first in this list counts: VRM-Q8X,
 * VRM-K2, VRM-Q8S, VRC-H7, VRM-Q9, VRM-L4, VRM-E3, VRM-B5, VRM-D6.
 *
 * @param name        Name to search, for example that of a sound device.
 * @param[out] outId  0 to 6, 8 or 10. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  name is null (tested first), outId is null, or no
 *                             model's text is found.
 * @retval 100 (ZTK_SUCCESS)   *outId is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetProductId(ZTKTextRef name, uint32_t *outId);

/**
 * Returns whether a mixer is attached.
 *
 * Counts the mixers on the USB bus and opens none.
 *
 * @param productId  Ignored: the result is the same for every value.
 *
 * @retval 103 (ZTK_CONNECTED)      At least one mixer is attached.
 * @retval 104 (ZTK_NOT_CONNECTED)  No mixer is attached or can be found.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_IsUSBConnection(uint32_t productId);
/** @} */

/**
 * @defgroup versions Version texts
 * Versions of four installed components, each read from a property-list file at
 * a fixed path. No requests are sent to mixers. The maker's installer for macOS
 * writes these files; without it they do not exist.
 *
 * The driver and the library are under /Library or, on older systems, under
 * /System/Library. The second number of the system version decides: a system
 * counts as newer if it is above 10, and as older otherwise. A version such as
 * 11.2 therefore counts as older. The other path is not tried.
 *
 * All four functions take:
 * - productId: the only product served is 10.
 * - outText: the version exactly as it is in the file; see ZTKTextRef for how
 *   long the text lives. Written on success only.
 *
 * Their results, in the order of the tests: 102 if outText is null; 102 if
 * productId is not 10; 102 if the file cannot be read as a dictionary, or its
 * version is missing or not a text; 100.
 * @{
 */

/** Reads the version of the installer package, from its receipt. */
ZTK_EXPORT ZTKResult ZTK_GetPkgVersionText(uint32_t productId,
                                           ZTKTextRef *outText);
/** Reads the short version of the USB audio driver. */
ZTK_EXPORT ZTKResult ZTK_GetDriverVersionText(uint32_t productId,
                                              ZTKTextRef *outText);
/** Reads the build version of the settings utility. */
ZTK_EXPORT ZTKResult ZTK_GetUtilityVersionText(uint32_t productId,
                                               ZTKTextRef *outText);
/** Reads the build version of the installed library. */
ZTK_EXPORT ZTKResult ZTK_GetLibraryVersionText(uint32_t productId,
                                               ZTKTextRef *outText);
/** @} */

/**
 * @defgroup input_audio USB input audio
 * The mixer signal that is recorded on each of the five USB channels.
 *
 * Serves the VRM-D6 (10) only. Channels are numbered from 0 to 4. Channels 0 to
 * 3 have seven choices, channel 4 has eight. After the choices there is a
 * placeholder with the text "PARAM ERROR". The text getter and the setter
 * accept its index, although it is not counted as a choice.
 * @{
 */

/**
 * Counts the choices of a channel.
 *
 * @param productId      Served: 10.
 * @param channel        0 to 4.
 * @param[out] outCount  7 for channels 0 to 3, 8 for channel 4. Written on
 *                       success only.
 *
 * @retval 102 (ZTK_REJECTED)  outCount is null (tested first), productId is not
 *                             served, or channel is above 4.
 * @retval 100 (ZTK_SUCCESS)   *outCount is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetNumOfInputAudioIndex(uint32_t productId,
                                                 uint32_t channel,
                                                 uint32_t *outCount);

/**
 * Names a choice of a channel.
 *
 * The texts of all channels form one list with eight entries for each channel:
 * index 8 of the channels 0 to 3 is the first choice of the next channel.
 *
 * @param productId     Served: 10.
 * @param channel       0 to 4.
 * @param index         0 to 8; on channel 4, 0 to 9. The text is "PARAM ERROR"
 *                      where there is no choice: at 7 on the channels 0 to 3,
 *                      at 8 and 9 on channel 4.
 * @param ignored       Any value.
 * @param[out] outText  A constant. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outText is null (tested first), productId is not
 *                             served, channel or index is out of range.
 * @retval 100 (ZTK_SUCCESS)   *outText is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetUSBInputAudioText(uint32_t productId,
                                              int32_t channel, uint32_t index,
                                              uint32_t ignored,
                                              ZTKTextRef *outText);

/**
 * Sets the choice of a channel: sends it to every mixer, stores and announces
 * it, and then asks each mixer for the position of its input selector.
 *
 * @param productId  Served: 10.
 * @param channel    0 to 4.
 * @param index      0 to 7; on channel 4, 0 to 8. Index 7 on channels 0 to 3
 *                   and index 8 on channel 4 send the placeholder.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served (tested first), channel
 *                             or index is out of range.
 * @retval 101 (ZTK_WARNING)   Set. Either no mixer is attached and index is 0,
 *                             1 or 2; or index is 0 or 1, and for a mixer that
 *                             can be opened the selector of the channel is not
 *                             in position 4 (ZTK_SELECTOR_AUDIBLE) or its
 *                             position cannot be read. Channel 4 has no
 *                             selector and counts as not in this position.
 * @retval 100 (ZTK_SUCCESS)   Set.
 */
ZTK_EXPORT ZTKResult ZTK_SetUSBInputAudio(uint32_t productId, uint32_t channel,
                                          uint32_t index);

/**
 * Sends a raw routing value to every mixer; it is neither stored nor announced.
 *
 * The value has 16 bits: high + 1 in the top four (higher bits are cut off),
 * channel + 1 in the next four, and source in the low eight.
 *
 * @param productId  Served: 10.
 * @param channel    0 to 4.
 * @param high       Any value; only its low four bits count.
 * @param source     Source code, 0 to 15: 1 control tone LINE, 3 control tone
 *                   PHONO, 6 post fader of the channel, 7 cross fader A, 8
 *                   cross fader B, 9 MIC, 10 REC OUT; the others have no name.
 *                   The codes 17 to 20, which select the fader of another
 *                   channel on channel 4, cannot be sent with this function.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served (tested first), channel
 *                             or source is out of range.
 * @retval 101 (ZTK_WARNING)   Sent. Either no mixer is attached and source is 0
 *                             or 1; or source is 0 to 3, and for a mixer that
 *                             can be opened the selector of the channel is not
 *                             in position 4 (ZTK_SELECTOR_AUDIBLE) or its
 *                             position cannot be read. Channel 4 has no
 *                             selector and counts as not in this position.
 * @retval 100 (ZTK_SUCCESS)   Sent.
 */
ZTK_EXPORT ZTKResult ZTK_SetUSBInputAudioDirect(uint32_t productId,
                                                uint32_t channel, uint32_t high,
                                                uint32_t source);

/**
 * Reads the stored choice of a channel.
 *
 * @param productId      Served: 10.
 * @param channel        0 to 5, which is one channel more than other functions
 *                       take. For channel 5 the choice is always 0.
 * @param[out] outIndex  The integer from the settings file, which may be any
 *                       value; -1 is 0xFFFFFFFF. 0 if nothing is stored.
 *                       Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outIndex is null (tested first), productId is not
 *                             served, or channel is out of range.
 * @retval 100 (ZTK_SUCCESS)   *outIndex is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetCurrentUSBInputAudioIndex(uint32_t productId,
                                                      int32_t channel,
                                                      uint32_t *outIndex);

/**
 * Sends the stored choice of a channel to every mixer again.
 *
 * Stores and announces nothing, and reads no selector.
 *
 * @param productId  Served: 10.
 * @param channel    0 to 5, as ZTK_GetCurrentUSBInputAudioIndex() takes it.
 *                   Channel 5 sends the placeholder of channel 4.
 *
 * @retval 102 (ZTK_REJECTED)  ZTK_GetCurrentUSBInputAudioIndex() rejects the
 *                             arguments, or channel * 8 + the stored index is
 *                             above 41.
 * @retval 100 (ZTK_SUCCESS)   Sent, also when no mixer is attached.
 */
ZTK_EXPORT ZTKResult ZTK_SetCurrentUSBInputAudio(uint32_t productId,
                                                 uint32_t channel);
/** @} */

/**
 * @defgroup warning_text Warning text
 * @{
 */

/**
 * Gets the text to show to the user after ZTK_SetUSBInputAudio() returned 101.
 *
 * Counts the mixers and asks the first one for the state of its port. The text
 * says that no mixer is attached, or that its input selector has to be turned.
 *
 * @param productId     Served: 10.
 * @param channel       0 to 3: channel 4 has no selector and no text.
 * @param resultCode    Must be 101.
 * @param language      0 English, 1 Japanese, 2 French, 3 German, 4 Italian,
 *                      5 Dutch, 6 Spanish, 7 Russian, 8 Portuguese,
 *                      9 simplified Chinese, 10 traditional Chinese,
 *                      11 Korean; 99 the language of the user. If no mixer is
 *                      attached, the language of the user is used in any case.
 * @param[out] outText  Must not be null; this is not tested. The text, or null
 *                      if the library's bundle is missing or, for the languages
 *                      0 to 11, this language or its text. If the text is
 *                      missing in the language of the user, the result is its
 *                      key, such as "WARNING1". Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served, channel is out of range,
 *                             or resultCode is not 101: in these cases no mixer
 *                             is asked. Or language is none of the above, which
 *                             is tested only after the mixer was asked.
 * @retval 100 (ZTK_SUCCESS)   *outText is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetWarningTextForSetUSBAudioInput(uint32_t productId,
                                                           uint32_t channel,
                                                           uint32_t resultCode,
                                                           uint32_t language,
                                                           ZTKTextRef *outText);
/** @} */

/**
 * @defgroup output_audio USB output audio
 * The input of the mixer for each playback channel of the computer.
 *
 * Serves the VRM-B5 (8) only and stores in the settings file of that model, but
 * sends to the same mixers as all other functions. Channels are numbered from 0
 * to 2 and have three choices each. The bounds of the functions differ: the
 * setters also take the channels 3 and 4, and the text getter also takes index
 * 3.
 * @{
 */

/**
 * Counts the choices of a channel.
 *
 * @param productId      Served: 8.
 * @param channel        0 to 2.
 * @param[out] outCount  Always 3. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outCount is null (tested first), productId is not
 *                             served, or channel is out of range.
 * @retval 100 (ZTK_SUCCESS)   *outCount is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetNumOfOutputAudioIndex(uint32_t productId,
                                                  uint32_t channel,
                                                  uint32_t *outCount);

/**
 * Names a choice of a channel.
 *
 * @param productId     Served: 8.
 * @param channel       0 to 2.
 * @param index         0 "CH1", 1 "CH2", 2 "AUX"; 3 is "CH1" again.
 * @param ignored       Any value.
 * @param[out] outText  A constant. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outText is null or channel is out of range
 *                             (tested first), productId is not served, or
 *                             index is above 3.
 * @retval 100 (ZTK_SUCCESS)   *outText is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetUSBOutputAudioText(uint32_t productId,
                                               uint32_t channel, uint32_t index,
                                               uint32_t ignored,
                                               ZTKTextRef *outText);

/**
 * Sets the choice of a channel: sends it to every mixer, stores and announces
 * it, and reads the input selectors of every mixer once.
 *
 * @param productId  Served: 8.
 * @param channel    0 to 4. For 3 and 4 nothing is sent, but the choice is
 *                   stored and announced.
 * @param index      0 to 2.
 *
 * @retval 102 (ZTK_REJECTED)  channel is out of range (tested first), productId
 *                             is not served, or index is out of range.
 * @retval 100 (ZTK_SUCCESS)   Set. The functions of this group never return
 * 101.
 */
ZTK_EXPORT ZTKResult ZTK_SetUSBOutputAudio(uint32_t productId, uint32_t channel,
                                           uint32_t index);

/**
 * Sets a channel to its default as ZTK_SetUSBOutputAudio() does, but does not
 * store it. The index of the default is the number of the channel.
 *
 * @param productId  Served: 8.
 * @param channel    0 to 4. There is nothing to send for 3 and 4; the channel
 *                   is announced as index.
 *
 * @retval 102 (ZTK_REJECTED)  channel is out of range (tested first), or
 *                             productId is not served.
 * @retval 100 (ZTK_SUCCESS)   Sent and announced.
 */
ZTK_EXPORT ZTKResult ZTK_SetUSBOutputAudioDefault(uint32_t productId,
                                                  uint32_t channel);

/**
 * Reads the stored choice of a channel.
 *
 * @param productId      Served: 8.
 * @param channel        0 to 2.
 * @param[out] outIndex  The integer from the settings file, which may be any
 *                       value; -1 is 0xFFFFFFFF. The number of the channel if
 *                       nothing is stored. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outIndex is null, productId is not served, or
 *                             channel is out of range.
 * @retval 100 (ZTK_SUCCESS)   *outIndex is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetCurrentUSBOutputAudioIndex(uint32_t productId,
                                                       uint32_t channel,
                                                       uint32_t *outIndex);

/**
 * Sends the stored choice of a channel to every mixer again.
 *
 * The stored index is not tested: an index above 2 sends a value of a later
 * channel, or nothing if there is no such value.
 *
 * @param productId  Served: 8.
 * @param channel    0 to 2.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served or channel is out of
 *                             range.
 * @retval 100 (ZTK_SUCCESS)   Sent, or there was nothing to send.
 */
ZTK_EXPORT ZTKResult ZTK_SetCurrentUSBOutputAudio(uint32_t productId,
                                                  uint32_t channel);
/** @} */

/**
 * @defgroup boost Boost level
 * The level of the mixer's USB output, in four steps.
 *
 * It can be set for the VRM-D6 (10) only; the choices can be listed for more
 * models.
 * @{
 */

/**
 * Counts the boost levels of a product.
 *
 * The answer comes from a constant table: no mixer is asked.
 *
 * @param productId      Served: 0, 1, 5, 6, 8, 10. These are more models than
 *                       ZTK_SetBoostLevelIndex() serves.
 * @param[out] outCount  Number of choices, always 4; valid indexes are 0
 *                       (-5 dB) to 3 (-19 dB). Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outCount is null (tested first), or productId is
 *                             not served.
 * @retval 100 (ZTK_SUCCESS)   *outCount is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetNumOfBoostLevelIndex(uint32_t productId,
                                                 uint32_t *outCount);

/**
 * Names a boost level.
 *
 * @param productId     Served: 0, 1, 5, 6, 8, 10.
 * @param index         0 "-5 dB", 1 "-10 dB", 2 "-15 dB", 3 "-19 dB".
 * @param ignored       Any value.
 * @param[out] outText  A constant. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outText is null (tested first), productId is not
 *                             served, or index is above 3.
 * @retval 100 (ZTK_SUCCESS)   *outText is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetBoostLevelText(uint32_t productId, uint32_t index,
                                           uint32_t ignored,
                                           ZTKTextRef *outText);

/**
 * Sets the boost level: sends it to every mixer, stores and announces it.
 *
 * @param productId  Served: 10.
 * @param index      0 to 3.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served or index is above 3.
 * @retval 100 (ZTK_SUCCESS)   Set.
 */
ZTK_EXPORT ZTKResult ZTK_SetBoostLevelIndex(uint32_t productId, uint32_t index);

/**
 * Reads the stored boost level.
 *
 * @param productId      Served: 10.
 * @param[out] outIndex  The integer from the settings file, which may be any
 *                       value; -1 is 0xFFFFFFFF. 3 if nothing is stored.
 * Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outIndex is null (tested first), or productId is
 *                             not served.
 * @retval 100 (ZTK_SUCCESS)   *outIndex is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetCurrentBoostLevelIndex(uint32_t productId,
                                                   uint32_t *outIndex);

/**
 * Sends the stored boost level to every mixer again.
 *
 * @param productId  Served: 10.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served, or the stored index is
 *                             above 3.
 * @retval 100 (ZTK_SUCCESS)   Sent, also when no mixer is attached.
 */
ZTK_EXPORT ZTKResult ZTK_SetCurrentBoostLevelIndex(uint32_t productId);
/** @} */

/**
 * @defgroup midi MIDI channel and key mode
 * The MIDI channel can be set for the VRM-K2 (1) only. The key mode can be set
 * for no model: its functions exist for programs that were built with them, and
 * always return 102.
 * @{
 */

/**
 * Counts the MIDI channels.
 *
 * @param productId      Served: 1.
 * @param[out] outCount  Always 16. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outCount is null (tested first), or productId is
 *                             not served.
 * @retval 100 (ZTK_SUCCESS)   *outCount is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetNumOfMidiChannelIndex(uint32_t productId,
                                                  uint32_t *outCount);

/**
 * Names a MIDI channel.
 *
 * @param productId     Served: 1.
 * @param index         0 "CH 1" to 15 "CH 16".
 * @param ignored       Any value.
 * @param[out] outText  A constant. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outText is null (tested first), productId is not
 *                             served, or index is above 15.
 * @retval 100 (ZTK_SUCCESS)   *outText is set.
 *
 * @note May be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetMidiChannelText(uint32_t productId, uint32_t index,
                                            uint32_t ignored,
                                            ZTKTextRef *outText);

/**
 * Sets the MIDI channel: sends it to every mixer, stores and announces it.
 *
 * @param productId  Served: 1.
 * @param index      0 to 15.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served or index is above 15.
 * @retval 100 (ZTK_SUCCESS)   Set.
 */
ZTK_EXPORT ZTKResult ZTK_SetMidiChannelIndex(uint32_t productId,
                                             uint32_t index);

/**
 * Reads the stored MIDI channel.
 *
 * @param productId      Served: 1.
 * @param[out] outIndex  The integer from the settings file, which may be any
 *                       value; -1 is 0xFFFFFFFF. 0 if nothing is stored.
 * Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outIndex is null (tested first), or productId is
 *                             not served.
 * @retval 100 (ZTK_SUCCESS)   *outIndex is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetCurrentMidiChannelIndex(uint32_t productId,
                                                    uint32_t *outIndex);

/**
 * Sends the stored MIDI channel to every mixer again, if it is one of the first
 * four.
 *
 * @param productId  Served: 1.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served, or the stored index is
 *                             above 3: only "CH 1" to "CH 4" are sent again,
 *                             although all sixteen can be set.
 * @retval 100 (ZTK_SUCCESS)   Sent, also when no mixer is attached.
 */
ZTK_EXPORT ZTKResult ZTK_SetCurrentMidiChannelIndex(uint32_t productId);

/** Returns 102 (ZTK_REJECTED) and does nothing; *outCount is not written. */
ZTK_EXPORT ZTKResult ZTK_GetNumOfMidiKeyModeIndex(uint32_t productId,
                                                  uint32_t *outCount);
/** Returns 102 (ZTK_REJECTED) and does nothing; *outText is not written. */
ZTK_EXPORT ZTKResult ZTK_GetMidiKeyModeText(uint32_t productId, uint32_t index,
                                            uint32_t ignored,
                                            ZTKTextRef *outText);
/** Returns 102 (ZTK_REJECTED) and does nothing. */
ZTK_EXPORT ZTKResult ZTK_SetMidiKeyModeIndex(uint32_t productId,
                                             uint32_t index);
/** Returns 102 (ZTK_REJECTED) and does nothing; *outIndex is not written. */
ZTK_EXPORT ZTKResult ZTK_GetCurrentMidiKeyModeIndex(uint32_t productId,
                                                    uint32_t *outIndex);
/** Returns 102 (ZTK_REJECTED) and does nothing. */
ZTK_EXPORT ZTKResult ZTK_SetCurrentMidiKeyModeIndex(uint32_t productId);
/** @} */

/**
 * @defgroup status Mixer status
 * Status of the attached mixers. Serves the VRM-D6 (10) only.
 *
 * Each query asks the mixers in the order of the bus and skips those that
 * cannot be opened. With several mixers the output is that of the last one;
 * only the firmware version is that of the first one.
 * @{
 */

/** Number of positions of an input selector: 0 to 16. */
#define ZTK_SELECTOR_POSITIONS 17u
/**
 * Position of an input selector in which the choices "Control Tone" of USB
 * input audio can be heard. What the other positions select is not known.
 */
#define ZTK_SELECTOR_AUDIBLE 4u

/**
 * Reads the certification level.
 *
 * @param productId      Served: 10.
 * @param[out] outLevel  Level, a 32-bit number that the mixer sends. 0 if no
 *                       mixer can be opened, or the last one that can does not
 *                       answer. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outLevel is null (tested first), or productId is
 *                             not served.
 * @retval 100 (ZTK_SUCCESS)   *outLevel is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetMixerCertifyLevel(uint32_t productId,
                                              uint32_t *outLevel);

/**
 * Reads the firmware version of the first mixer.
 *
 * @param productId        Served: 10.
 * @param[out] outVersion  The 16-bit number that the mixer sends, such as 1078
 *                         (0x0436). 0 if the first mixer cannot be opened or
 *                         does not answer; the others are not asked. Also set
 *                         to 0 if productId is not served.
 *
 * @retval 102 (ZTK_REJECTED)  outVersion is null (tested first), or productId
 *                             is not served.
 * @retval 100 (ZTK_SUCCESS)   *outVersion is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetFirmwareVersionIndex(uint32_t productId,
                                                 uint32_t *outVersion);

/**
 * Reads the position of the input selector of a channel.
 *
 * @param productId         Served: 10.
 * @param channel           0 to 4. Channel 4 has no input selector; its
 * position is always 0.
 * @param[out] outPosition  Position, 0 to 16. 0 also if a mixer can be opened
 *                          and does not answer. Not written if no mixer can be
 *                          opened: set it before the call.
 *
 * @retval 102 (ZTK_REJECTED)  outPosition is null (tested first), productId is
 *                             not served, or channel is out of range: then
 *                             *outPosition is not written. Or a mixer sends 17
 *                             or more: then *outPosition is that number.
 * @retval 100 (ZTK_SUCCESS)   *outPosition is set, or no mixer can be opened.
 */
ZTK_EXPORT ZTKResult ZTK_GetMixerInputSelectorStatus(uint32_t productId,
                                                     uint32_t channel,
                                                     uint32_t *outPosition);

/**
 * Reads whether the Serato DJ software is active on the mixer.
 *
 * @param productId       Served: 10.
 * @param[out] outActive  0 not active, 1 active. Not written if no mixer can be
 *                        opened: set it before the call.
 *
 * @retval 102 (ZTK_REJECTED)  outActive is null (tested first), productId is
 *                             not served, or a mixer sends another number or
 *                             does not answer. An earlier mixer may have set
 *                             *outActive.
 * @retval 100 (ZTK_SUCCESS)   *outActive is set, or no mixer can be opened.
 */
ZTK_EXPORT ZTKResult ZTK_GetMixerSeratoActiveStatus(uint32_t productId,
                                                    uint32_t *outActive);
/** @} */

/**
 * @defgroup callbacks Change callbacks
 * Calls a function of the program when any process of the session, this one
 * included, changes a setting.
 *
 * There is one callback for each setting and product. Registering again
 * replaces it and adds another delivery: after n registrations it runs n times
 * for each change. After unregistering it does not run any more.
 *
 * The functions that register take:
 * - productId: the comment of each function names the products that it serves.
 * - callback: the function to call. It runs on the event loop that is described
 *   at the beginning of this file. Null means that nothing is called.
 * - context: a pointer that is passed to the callback. It must stay valid until
 *   the callback is unregistered.
 *
 * They return 102 if productId is not served, and else 100, also if the session
 * has no message bus, or if GLib is not installed (Linux).
 *
 * The functions that unregister ignore their second argument. They return 102
 * if productId is not served, and else 100. For three settings they serve more
 * products than the functions that register.
 * @{
 */

/** Registers a callback for USB input audio. Served: 10. */
ZTK_EXPORT ZTKResult ZTK_RegisterInputAudioChangedCallback(
    uint32_t productId, ZTKChannelCallback callback, void *context);
/** Unregisters the callback for USB input audio. Served: 0, 1, 5, 6, 8, 10. */
ZTK_EXPORT ZTKResult ZTK_UnregisterInputAudioChangedCallback(uint32_t productId,
                                                             void *ignored);

/**
 * Registers a callback for USB output audio. Served: 10.
 *
 * The setters of USB output audio announce their changes under the name of the
 * VRM-B5, but this function registers for the name of the VRM-D6. So changes
 * that are made with this library never call the callback.
 */
ZTK_EXPORT ZTKResult ZTK_RegisterOutputAudioChangedCallback(
    uint32_t productId, ZTKChannelCallback callback, void *context);
/** Unregisters the callback for USB output audio. Served: 0, 1, 5, 6, 8, 10. */
ZTK_EXPORT ZTKResult
ZTK_UnregisterOutputAudioChangedCallback(uint32_t productId, void *ignored);

/** Registers a callback for the boost level. Served: 10. */
ZTK_EXPORT ZTKResult ZTK_RegisterBoostLevelChangedCallback(
    uint32_t productId, ZTKIndexCallback callback, void *context);
/** Unregisters the callback for the boost level. Served: 0, 1, 5, 6, 8, 10. */
ZTK_EXPORT ZTKResult ZTK_UnregisterBoostLevelChangedCallback(uint32_t productId,
                                                             void *ignored);

/** Registers a callback for the MIDI channel. Served: 1. */
ZTK_EXPORT ZTKResult ZTK_RegisterMidiChannelChangedCallback(
    uint32_t productId, ZTKIndexCallback callback, void *context);
/** Unregisters the callback for the MIDI channel. Served: 1. */
ZTK_EXPORT ZTKResult
ZTK_UnregisterMidiChannelChangedCallback(uint32_t productId, void *ignored);

/** Returns 102 (ZTK_REJECTED) and does nothing. */
ZTK_EXPORT ZTKResult ZTK_RegisterMidiKeyModeChangedCallback(
    uint32_t productId, ZTKIndexCallback callback, void *context);
/** Returns 102 (ZTK_REJECTED) and does nothing. */
ZTK_EXPORT ZTKResult
ZTK_UnregisterMidiKeyModeChangedCallback(uint32_t productId, void *ignored);
/** @} */

#ifdef __cplusplus
}
#endif

#endif /* ZTKFUNC_H_ */
