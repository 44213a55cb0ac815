/* SPDX-License-Identifier: MIT */
/**
 * @file ZTKFunc.h
 * Settings of the USB DJ mixer VRM-D6 and its sister models.
 *
 * A setter sends the new value to every attached mixer, remembers it in a
 * per-user property-list file and announces it to every process of the user's
 * session. A getter of a current value reads that file; a re-apply function
 * sends what it holds once more. Status queries ask the mixer.
 *
 * **Results.** Every function returns one of the ZTKResult codes below. Where
 * one says "102", nothing was sent, stored or announced and outputs keep their
 * value, unless its own comment says otherwise.
 *
 * **Failures below the interface are not reported.** A mixer that cannot be
 * opened, a request that it refuses, a settings file that cannot be written, a
 * session without a message bus: each is passed over and the code is the same
 * as if it had worked. The `ztk` program looks behind the codes.
 *
 * **Threads.** The library starts no thread and takes no lock. Call it from one
 * thread at a time, except where a function says that any thread may. On Linux
 * change callbacks run on the GLib main context that is the thread default of
 * the thread that registers, or on the global default context when it has
 * none: a worker thread pushes its own context first
 * (g_main_context_push_thread_default()). On macOS the
 * distributed notification center delivers on the run loop of the main thread,
 * whichever thread registers. Nothing is delivered while no loop runs: on Linux
 * keep one running on the thread that registers, or, for the global context, on
 * the thread that works on it; on macOS on the main thread.
 *
 * **Texts** are never freed by the caller; see ZTKTextRef.
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

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup results Result codes
 * @{
 */

/** What every function returns: one of the five codes below. */
typedef uint32_t ZTKResult;

/**
 * Done. Queries answer it too when no mixer is attached; each says what its
 * output holds then.
 */
#define ZTK_SUCCESS 100u
/**
 * Done, with a warning: no mixer is attached to hear the new routing from, or
 * the input selector of that channel does not stand where it makes the routing
 * audible. Only ZTK_SetUSBInputAudio() and ZTK_SetUSBInputAudioDirect() answer
 * it.
 */
#define ZTK_WARNING 101u
/**
 * Refused: an argument is null, out of range, or not served, or a name holds no
 * model. Where a function refuses for what it read from a file or a mixer, its
 * own comment says so.
 */
#define ZTK_REJECTED 102u
/** At least one mixer is attached; only ZTK_IsUSBConnection() answers it. */
#define ZTK_CONNECTED 103u
/** No mixer is attached; only ZTK_IsUSBConnection() answers it. */
#define ZTK_NOT_CONNECTED 104u
/** @} */

/**
 * @defgroup types Texts and callbacks
 * @{
 */

#if defined(__APPLE__)
/**
 * A text. A constant of the library lives as long as the process; a text read
 * from a file belongs to the dictionary or bundle that it came from, so retain
 * it to keep it beyond the current autorelease pool. Never release it.
 */
typedef CFStringRef ZTKTextRef;
/** Makes a ZTKTextRef from a string literal. */
#define ZTK_TEXT(literal) CFSTR(literal)
#else
/**
 * A text: UTF-8, ends with a zero byte. One handed out stays valid until the
 * process ends; never free it. Texts given to the library are only read during
 * the call.
 */
typedef const char *ZTKTextRef;
/** Makes a ZTKTextRef from a string literal. */
#define ZTK_TEXT(literal) (literal)
#endif

/**
 * Called when a routing changes in any process.
 *
 * @param channel  Channel that changed, from 0.
 * @param index    Its new choice, from 0.
 * @param context  As given when registering.
 */
typedef void (*ZTKChannelCallback)(int32_t channel, int32_t index,
                                   void *context);

/**
 * Called when a setting that has no channels changes in any process.
 *
 * @param index    The new choice, from 0.
 * @param context  As given when registering.
 */
typedef void (*ZTKIndexCallback)(int32_t index, void *context);
/** @} */

/**
 * @defgroup product Product and connection
 * Which model a function is asked about, and whether a mixer is attached.
 *
 * Models are numbered 0 VRM-Q8X, 1 VRM-K2, 2 VRM-Q8S, 3 VRC-H7, 4 VRM-Q9,
 * 5 VRM-L4, 6 VRM-E3, 8 VRM-B5, 10 VRM-D6; 7 and 9 are no models. The number
 * chooses who is served, not who is talked to: mixers are always found by the
 * maker's USB vendor id and the USB product id 27.
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
 * Finds the number of a model from its name.
 *
 * The model's text may stand anywhere in the name, in upper or lower case.
 * When a name holds two, the one that comes first in this order counts:
 * VRM-Q8X, VRM-K2, VRM-Q8S, VRC-H7, VRM-Q9, VRM-L4, VRM-E3, VRM-B5, VRM-D6.
 *
 * @param name        Name to look through.
 * @param[out] outId  0 to 6, 8 or 10. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  name is null (tested first), outId is null, or no
 *                             model's text is found.
 * @retval 100 (ZTK_SUCCESS)   *outId is set.
 *
 * @note Keeps no state; may be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetProductId(ZTKTextRef name, uint32_t *outId);

/**
 * Tells whether a mixer is attached.
 *
 * Counts the mixers on the bus; none is opened.
 *
 * @param productId  Ignored: every value answers the same.
 *
 * @retval 103 (ZTK_CONNECTED)      At least one mixer is attached.
 * @retval 104 (ZTK_NOT_CONNECTED)  None is, or the bus cannot be read.
 *
 * @note Keeps no state; may be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_IsUSBConnection(uint32_t productId);
/** @} */

/**
 * @defgroup versions Version texts
 * Versions of the four installed pieces, each read from a property-list file at
 * a fixed place. No mixer is asked.
 *
 * The driver and the library lie under /Library or, on older systems, under
 * /System/Library. The second number of the system version decides: above 10
 * is newer, and everything else, a version 11.2 included, is older. There is no
 * second try at the other place.
 *
 * All four take:
 * - productId: served is 10 only.
 * - outText: the version exactly as the file has it; see ZTKTextRef for how
 *   long it lives. Written on success only.
 *
 * And answer, in this order: 102 when outText is null; 102 when productId is
 * not 10; 102 when the file cannot be read as a dictionary or does not hold the
 * version as a text; 100.
 * @{
 */

/** Reads the version of the installer package, from its receipt. */
ZTK_EXPORT ZTKResult ZTK_GetPkgVersionText(uint32_t productId,
                                           ZTKTextRef *outText);
/** Reads the version of the USB audio driver: its short version. */
ZTK_EXPORT ZTKResult ZTK_GetDriverVersionText(uint32_t productId,
                                              ZTKTextRef *outText);
/** Reads the version of the settings utility: its build version. */
ZTK_EXPORT ZTKResult ZTK_GetUtilityVersionText(uint32_t productId,
                                               ZTKTextRef *outText);
/** Reads the version of the installed library: its build version. */
ZTK_EXPORT ZTKResult ZTK_GetLibraryVersionText(uint32_t productId,
                                               ZTKTextRef *outText);
/** @} */

/**
 * @defgroup input_audio USB input audio
 * Which mixer signal is recorded on each of the five USB channels.
 *
 * Serves the VRM-D6 (10) only. Channels count from 0 to 4. Channels 0 to 3
 * offer seven choices, channel 4 eight. Beyond them stands a placeholder,
 * "PARAM ERROR", which the text getter and the setter still take: their bounds
 * are wider than the count.
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
 * @note Keeps no state; may be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetNumOfInputAudioIndex(uint32_t productId,
                                                 uint32_t channel,
                                                 uint32_t *outCount);

/**
 * Names a choice of a channel.
 *
 * The choices lie one channel after the other, eight to a channel: index 8 of
 * channels 0 to 3 is the first choice of the next channel.
 *
 * @param productId     Served: 10.
 * @param channel       0 to 4.
 * @param index         0 to 8; on channel 4, 0 to 9. "PARAM ERROR" where there
 *                      is no choice: 7 on channels 0 to 3, 8 and 9 on channel
 *                      4.
 * @param ignored       Any value.
 * @param[out] outText  A constant. Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outText is null (tested first), productId is not
 *                             served, channel or index is out of range.
 * @retval 100 (ZTK_SUCCESS)   *outText is set.
 *
 * @note Keeps no state; may be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetUSBInputAudioText(uint32_t productId,
                                              int32_t channel, uint32_t index,
                                              uint32_t ignored,
                                              ZTKTextRef *outText);

/**
 * Sets the choice of a channel: sends it to every mixer, remembers it,
 * announces it, and then asks each mixer where its input selector stands.
 *
 * @param productId  Served: 10.
 * @param channel    0 to 4.
 * @param index      0 to 7; on channel 4, 0 to 8. Index 7 on channels 0 to 3
 *                   and index 8 on channel 4 send the placeholder.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served (tested first), channel
 *                             or index is out of range.
 * @retval 101 (ZTK_WARNING)   Set. No mixer is attached and index is 0, 1 or 2;
 *                             or one opens, index is 0 or 1, and the selector
 *                             of that channel is not at position 4, or is not
 *                             told. Channel 4 has none and is never at 4.
 * @retval 100 (ZTK_SUCCESS)   Set.
 */
ZTK_EXPORT ZTKResult ZTK_SetUSBInputAudio(uint32_t productId, uint32_t channel,
                                          uint32_t index);

/**
 * Sends a raw routing value to every mixer; it is neither remembered nor
 * announced.
 *
 * The value is 16 bits: high + 1 in the top four (higher bits are cut off),
 * channel + 1 in the next four, source in the low eight.
 *
 * @param productId  Served: 10.
 * @param channel    0 to 4.
 * @param high       Any value; only its low four bits count.
 * @param source     Source code, 0 to 15: 1 control tone LINE, 3 control tone
 *                   PHONO, 6 post fader of the channel, 7 cross fader A, 8
 *                   cross fader B, 9 MIC, 10 REC OUT; the others have no name.
 *                   The faders of another channel, 17 to 20 on channel 4, are
 *                   out of this function's reach.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served (tested first), channel
 *                             or source is out of range.
 * @retval 101 (ZTK_WARNING)   Sent. No mixer is attached and source is 0 or 1;
 *                             or one opens, source is 0 to 3, and the selector
 *                             of that channel is not at position 4, or is not
 *                             told. Channel 4 has none and is never at 4.
 * @retval 100 (ZTK_SUCCESS)   Sent.
 */
ZTK_EXPORT ZTKResult ZTK_SetUSBInputAudioDirect(uint32_t productId,
                                                uint32_t channel, uint32_t high,
                                                uint32_t source);

/**
 * Reads the remembered choice of a channel.
 *
 * @param productId      Served: 10.
 * @param channel        0 to 5: one wider than elsewhere. Channel 5 is always
 *                       0.
 * @param[out] outIndex  The integer as it stands in the settings file, any
 *                       value, -1 as 0xFFFFFFFF; 0 without one.
 *
 * @retval 102 (ZTK_REJECTED)  outIndex is null (tested first), productId is not
 *                             served, or channel is out of range.
 * @retval 100 (ZTK_SUCCESS)   *outIndex is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetCurrentUSBInputAudioIndex(uint32_t productId,
                                                      int32_t channel,
                                                      uint32_t *outIndex);

/**
 * Sends the remembered choice of a channel to every mixer once more.
 *
 * Nothing is stored or announced, no selector is read.
 *
 * @param productId  Served: 10.
 * @param channel    0 to 5, as ZTK_GetCurrentUSBInputAudioIndex() takes it.
 *                   Channel 5 sends the placeholder of channel 4.
 *
 * @retval 102 (ZTK_REJECTED)  That function refuses the arguments, or
 *                             channel * 8 + the remembered index is above 41.
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
 * Gives the sentence to show with a 101 of ZTK_SetUSBInputAudio().
 *
 * Counts the mixers and asks the first one for the state of its port; the
 * sentence says whether no mixer is attached or its input selector needs to be
 * turned.
 *
 * @param productId     Served: 10.
 * @param channel       0 to 3: channel 4 has no selector and no sentence.
 * @param resultCode    Must be 101.
 * @param language      0 English, 1 Japanese, 2 French, 3 German, 4 Italian,
 *                      5 Dutch, 6 Spanish, 7 Russian, 8 Portuguese,
 *                      9 simplified Chinese, 10 traditional Chinese,
 *                      11 Korean; 99 the user's own. With no mixer attached the
 *                      user's own language is used whatever is asked for.
 * @param[out] outText  Must not be null: it is not tested. The sentence, or
 *                      null when the library's bundle is missing or, for
 *                      languages 0 to 11, that language or its sentence. In
 *                      the user's own language a missing sentence yields its
 *                      key, such as "WARNING1". Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served, channel is out of range,
 *                             or resultCode is not 101 (nothing is asked of a
 *                             mixer then); or language is none of the above
 *                             (known only after the mixer was asked).
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
 * Which playback channel of the computer feeds which mixer input.
 *
 * Serves the VRM-B5 (8) only, and keeps that model's settings file, but talks
 * to the same mixers as every other family. Channels count from 0 to 2, each
 * with three choices. The functions do not agree on their bounds: the setters
 * take channels 3 and 4 too, and the text getter takes index 3.
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
 * @note Keeps no state; may be called from any thread.
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
 * @note Keeps no state; may be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetUSBOutputAudioText(uint32_t productId,
                                               uint32_t channel, uint32_t index,
                                               uint32_t ignored,
                                               ZTKTextRef *outText);

/**
 * Sets the choice of a channel: sends it to every mixer, remembers it,
 * announces it, and reads every mixer's input selector once.
 *
 * @param productId  Served: 8.
 * @param channel    0 to 4. There is nothing to send for 3 and 4; they are
 *                   remembered and announced all the same.
 * @param index      0 to 2.
 *
 * @retval 102 (ZTK_REJECTED)  channel is out of range (tested first), productId
 *                             is not served, or index is out of range.
 * @retval 100 (ZTK_SUCCESS)   Set. This family never answers 101.
 */
ZTK_EXPORT ZTKResult ZTK_SetUSBOutputAudio(uint32_t productId, uint32_t channel,
                                           uint32_t index);

/**
 * Sets a channel to its default, whose index is the channel itself, as
 * ZTK_SetUSBOutputAudio() does, but does not remember it.
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
 * Reads the remembered choice of a channel.
 *
 * @param productId      Served: 8.
 * @param channel        0 to 2.
 * @param[out] outIndex  The integer as it stands in the settings file, any
 *                       value, -1 as 0xFFFFFFFF; the channel itself without
 *                       one.
 *
 * @retval 102 (ZTK_REJECTED)  outIndex is null, productId is not served, or
 *                             channel is out of range.
 * @retval 100 (ZTK_SUCCESS)   *outIndex is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetCurrentUSBOutputAudioIndex(uint32_t productId,
                                                       uint32_t channel,
                                                       uint32_t *outIndex);

/**
 * Sends the remembered choice of a channel to every mixer once more.
 *
 * The remembered index is not tested: one above 2 sends a value of a later
 * channel, and one that has no value sends nothing.
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
 * Only the VRM-D6 (10) can be set; the choices can be listed for more models.
 * @{
 */

/**
 * Counts the boost levels of a product.
 *
 * Answered from a constant table: no mixer is asked, none need be attached.
 *
 * @param productId      Model asked about, as ZTK_GetProductId() numbers them.
 *                       Served: 0, 1, 5, 6, 8, 10. Wider than
 *                       ZTK_SetBoostLevelIndex(), which serves 10 only.
 * @param[out] outCount  Number of choices, always 4; valid indexes are 0
 *                       (-5 dB) to 3 (-19 dB). Written on success only.
 *
 * @retval 102 (ZTK_REJECTED)  outCount is null (tested first), or productId is
 *                             not served.
 * @retval 100 (ZTK_SUCCESS)   *outCount is set.
 *
 * @note Keeps no state; may be called from any thread.
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
 * @note Keeps no state; may be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetBoostLevelText(uint32_t productId, uint32_t index,
                                           uint32_t ignored,
                                           ZTKTextRef *outText);

/**
 * Sets the boost level: sends it to every mixer, remembers and announces it.
 *
 * @param productId  Served: 10.
 * @param index      0 to 3.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served or index is above 3.
 * @retval 100 (ZTK_SUCCESS)   Set.
 */
ZTK_EXPORT ZTKResult ZTK_SetBoostLevelIndex(uint32_t productId, uint32_t index);

/**
 * Reads the remembered boost level.
 *
 * @param productId      Served: 10.
 * @param[out] outIndex  The integer as it stands in the settings file, any
 *                       value, -1 as 0xFFFFFFFF; 3 without one.
 *
 * @retval 102 (ZTK_REJECTED)  outIndex is null (tested first), or productId is
 *                             not served.
 * @retval 100 (ZTK_SUCCESS)   *outIndex is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetCurrentBoostLevelIndex(uint32_t productId,
                                                   uint32_t *outIndex);

/**
 * Sends the remembered boost level to every mixer once more.
 *
 * @param productId  Served: 10.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served, or the remembered index
 *                             is above 3: nothing is sent.
 * @retval 100 (ZTK_SUCCESS)   Sent, also when no mixer is attached.
 */
ZTK_EXPORT ZTKResult ZTK_SetCurrentBoostLevelIndex(uint32_t productId);
/** @} */

/**
 * @defgroup midi MIDI channel and key mode
 * The MIDI channel serves the VRM-K2 (1) only. The key mode serves no model:
 * its functions are kept for programs that were built against them and answer
 * 102 to everything.
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
 * @note Keeps no state; may be called from any thread.
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
 * @note Keeps no state; may be called from any thread.
 */
ZTK_EXPORT ZTKResult ZTK_GetMidiChannelText(uint32_t productId, uint32_t index,
                                            uint32_t ignored,
                                            ZTKTextRef *outText);

/**
 * Sets the MIDI channel: sends it to every mixer, remembers and announces it.
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
 * Reads the remembered MIDI channel.
 *
 * @param productId      Served: 1.
 * @param[out] outIndex  The integer as it stands in the settings file, any
 *                       value, -1 as 0xFFFFFFFF; 0 without one.
 *
 * @retval 102 (ZTK_REJECTED)  outIndex is null (tested first), or productId is
 *                             not served.
 * @retval 100 (ZTK_SUCCESS)   *outIndex is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetCurrentMidiChannelIndex(uint32_t productId,
                                                    uint32_t *outIndex);

/**
 * Sends the remembered MIDI channel to every mixer once more, if it is one of
 * the first four.
 *
 * @param productId  Served: 1.
 *
 * @retval 102 (ZTK_REJECTED)  productId is not served, or the remembered index
 *                             is above 3: only "CH 1" to "CH 4" are re-sent,
 *                             although all sixteen can be set.
 * @retval 100 (ZTK_SUCCESS)   Sent, also when no mixer is attached.
 */
ZTK_EXPORT ZTKResult ZTK_SetCurrentMidiChannelIndex(uint32_t productId);

/** Answers 102 (ZTK_REJECTED) and does nothing; *outCount is not written. */
ZTK_EXPORT ZTKResult ZTK_GetNumOfMidiKeyModeIndex(uint32_t productId,
                                                  uint32_t *outCount);
/** Answers 102 (ZTK_REJECTED) and does nothing; *outText is not written. */
ZTK_EXPORT ZTKResult ZTK_GetMidiKeyModeText(uint32_t productId, uint32_t index,
                                            uint32_t ignored,
                                            ZTKTextRef *outText);
/** Answers 102 (ZTK_REJECTED) and does nothing. */
ZTK_EXPORT ZTKResult ZTK_SetMidiKeyModeIndex(uint32_t productId,
                                             uint32_t index);
/** Answers 102 (ZTK_REJECTED) and does nothing; *outIndex is not written. */
ZTK_EXPORT ZTKResult ZTK_GetCurrentMidiKeyModeIndex(uint32_t productId,
                                                    uint32_t *outIndex);
/** Answers 102 (ZTK_REJECTED) and does nothing. */
ZTK_EXPORT ZTKResult ZTK_SetCurrentMidiKeyModeIndex(uint32_t productId);
/** @} */

/**
 * @defgroup status Mixer status
 * Facts that only the mixer knows. Serves the VRM-D6 (10) only.
 *
 * Each query asks the attached mixers in bus order; a mixer that cannot be
 * opened is passed over. With several mixers the last answer stands, except
 * that the firmware version is the first mixer's.
 * @{
 */

/**
 * Reads the certification level.
 *
 * @param productId      Served: 10.
 * @param[out] outLevel  The mixer's number; 0 when none opens, or when the last
 *                       that opens does not answer. Untouched on 102.
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
 * @param[out] outVersion  The mixer's 16-bit number, such as 1078; 0 when the
 *                         first mixer does not open or answer, whatever the
 *                         others would. Set to 0 also when productId is
 *                         refused.
 *
 * @retval 102 (ZTK_REJECTED)  outVersion is null (tested first), or productId
 *                             is not served.
 * @retval 100 (ZTK_SUCCESS)   *outVersion is set.
 */
ZTK_EXPORT ZTKResult ZTK_GetFirmwareVersionIndex(uint32_t productId,
                                                 uint32_t *outVersion);

/**
 * Reads where the input selector of a channel stands.
 *
 * @param productId         Served: 10.
 * @param channel           0 to 4. The mixer reports 0 to 3; channel 4 is 0.
 * @param[out] outPosition  Position, 0 to 16; 0 also for a mixer that opens
 *                          and does not answer. Untouched when no mixer can be
 *                          opened: set it before.
 *
 * @retval 102 (ZTK_REJECTED)  outPosition is null (tested first), productId is
 *                             not served, or channel is out of range, with
 *                             *outPosition untouched; or a mixer reports 17 or
 *                             more, with that number in *outPosition.
 * @retval 100 (ZTK_SUCCESS)   Answered, or no mixer can be opened.
 */
ZTK_EXPORT ZTKResult ZTK_GetMixerInputSelectorStatus(uint32_t productId,
                                                     uint32_t channel,
                                                     uint32_t *outPosition);

/**
 * Reads whether the Serato DJ software is active on the mixer.
 *
 * @param productId       Served: 10.
 * @param[out] outActive  0 not active, 1 active. Untouched when no mixer can be
 *                        opened: set it before.
 *
 * @retval 102 (ZTK_REJECTED)  outActive is null (tested first), productId is
 *                             not served, or a mixer reports something else or
 *                             nothing. A mixer before it may have set
 *                             *outActive.
 * @retval 100 (ZTK_SUCCESS)   Answered, or no mixer can be opened.
 */
ZTK_EXPORT ZTKResult ZTK_GetMixerSeratoActiveStatus(uint32_t productId,
                                                    uint32_t *outActive);
/** @} */

/**
 * @defgroup callbacks Change callbacks
 * Be called when any process of the session, this one included, changes a
 * setting.
 *
 * One callback per family and product. Registering again replaces it and adds
 * another delivery: after n registrations it runs n times for each change.
 * Unregistering empties the slot, so that none of them runs anything.
 *
 * Register takes:
 * - productId: who is served stands with each function.
 * - callback: called on the event loop that the head of this file names. Null
 *   is taken and means nobody is called.
 * - context: handed back as it is; must stay valid until unregistered.
 *
 * It answers 102 when productId is not served, and else 100, also when there is
 * no message bus to listen on, or no GLib to listen with.
 *
 * Unregister ignores its second argument. It answers 102 when productId is not
 * served, and else 100; in three families it serves more products than Register
 * does.
 * @{
 */

/** Registers for USB input audio. Served: 10. */
ZTK_EXPORT ZTKResult ZTK_RegisterInputAudioChangedCallback(
    uint32_t productId, ZTKChannelCallback callback, void *context);
/** Unregisters from USB input audio. Served: 0, 1, 5, 6, 8, 10. */
ZTK_EXPORT ZTKResult ZTK_UnregisterInputAudioChangedCallback(uint32_t productId,
                                                             void *ignored);

/**
 * Registers for USB output audio. Served: 10.
 *
 * The setters of this family announce under the VRM-B5's name, and this listens
 * under the VRM-D6's: the library's own changes never call it.
 */
ZTK_EXPORT ZTKResult ZTK_RegisterOutputAudioChangedCallback(
    uint32_t productId, ZTKChannelCallback callback, void *context);
/** Unregisters from USB output audio. Served: 0, 1, 5, 6, 8, 10. */
ZTK_EXPORT ZTKResult
ZTK_UnregisterOutputAudioChangedCallback(uint32_t productId, void *ignored);

/** Registers for the boost level. Served: 10. */
ZTK_EXPORT ZTKResult ZTK_RegisterBoostLevelChangedCallback(
    uint32_t productId, ZTKIndexCallback callback, void *context);
/** Unregisters from the boost level. Served: 0, 1, 5, 6, 8, 10. */
ZTK_EXPORT ZTKResult ZTK_UnregisterBoostLevelChangedCallback(uint32_t productId,
                                                             void *ignored);

/** Registers for the MIDI channel. Served: 1. */
ZTK_EXPORT ZTKResult ZTK_RegisterMidiChannelChangedCallback(
    uint32_t productId, ZTKIndexCallback callback, void *context);
/** Unregisters from the MIDI channel. Served: 1. */
ZTK_EXPORT ZTKResult
ZTK_UnregisterMidiChannelChangedCallback(uint32_t productId, void *ignored);

/** Answers 102 (ZTK_REJECTED) and does nothing. */
ZTK_EXPORT ZTKResult ZTK_RegisterMidiKeyModeChangedCallback(
    uint32_t productId, ZTKIndexCallback callback, void *context);
/** Answers 102 (ZTK_REJECTED) and does nothing. */
ZTK_EXPORT ZTKResult
ZTK_UnregisterMidiKeyModeChangedCallback(uint32_t productId, void *ignored);
/** @} */

#ifdef __cplusplus
}
#endif

#endif /* ZTKFUNC_H_ */
