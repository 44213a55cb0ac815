/* SPDX-License-Identifier: MIT */
/**
 * @file ZTKOutcome.h
 * What the last call of a ZTKFunc.h function on this thread really did.
 *
 * The result codes of ZTKFunc.h do not report failures below the interface: a
 * mixer that refuses a request, a file that cannot be written, a missing
 * message bus. The library records them instead. Ask for the record directly
 * after the call:
 *
 * @code
 * ZTK_SetBoostLevelIndex(ZTK_PRODUCT_VRM_D6, 1);
 * ZTKOutcome outcome = {.size = sizeof outcome};
 * ZTK_GetLastOutcome(&outcome);
 * if (outcome.store.result != ZTK_FILE_OK) puts("not saved");
 * @endcode
 */
#ifndef ZTKOUTCOME_H_
#define ZTKOUTCOME_H_

#include "ZTKFunc.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup outcome Outcome of the last call
 * One record for each thread. Every function of ZTKFunc.h that talks to mixers,
 * reads or stores a setting, reads a version or a warning text, or announces a
 * change starts a new record, also when it then rejects its arguments: the
 * record is empty in that case. Functions that answer from constant tables and
 * the functions that register callbacks leave the record as it is.
 *
 * The library only writes the record; its behaviour never depends on it.
 *
 * **System codes.** Where a field is called systemCode, it holds the number
 * that the operating system gave: on Linux an errno value such as ENOSPC, on
 * macOS an IOReturn, or an errno value for files; 0 if there is none.
 * @{
 */

/**
 * Mixers that a record has room for. A USB bus has addresses for 127 devices.
 * If more are attached to several buses, the others are counted and served, but
 * not listed.
 */
#define ZTK_OUTCOME_MIXERS 127u

/** The call had no request of this kind for the mixer. */
#define ZTK_REQUEST_NONE 0u
/** The mixer accepted the value, or answered the question. */
#define ZTK_REQUEST_ACCEPTED 1u
/** The mixer refused the request (the USB term is a stall). */
#define ZTK_REQUEST_REFUSED 2u
/** The mixer did not answer in time. */
#define ZTK_REQUEST_SILENT 3u
/** The mixer was unplugged or switched off after it was counted. */
#define ZTK_REQUEST_GONE 4u
/** This user has no permission to open the mixer. */
#define ZTK_REQUEST_NOT_PERMITTED 5u
/** Another error; the system code tells which. */
#define ZTK_REQUEST_FAILED 6u

/** What became of one request to one mixer. */
typedef struct ZTKRequestOutcome {
  /** One of the ZTK_REQUEST_ constants. */
  uint32_t result;
  /**
   * 1 if the mixer could be opened. 0 if it could not: result then tells why,
   * and nothing was sent to it.
   */
  uint32_t opened;
  /** Bytes of data that the mixer sent, 0 for a request that sets a value. */
  uint32_t length;
  /** System code of the failure; 0 if there was none. */
  int32_t systemCode;
} ZTKRequestOutcome;

/** What became of the requests to one mixer; a call makes at most these two. */
typedef struct ZTKMixerOutcome {
  /** The request that sets a value. */
  ZTKRequestOutcome write;
  /** The request that asks for a status, after a change as well. */
  ZTKRequestOutcome read;
} ZTKMixerOutcome;

/** The call had nothing to do with this file. */
#define ZTK_FILE_NONE 0u
/** Read, or the value is stored. */
#define ZTK_FILE_OK 1u
/** There is no such file. */
#define ZTK_FILE_ABSENT 2u
/** The user has no home folder. */
#define ZTK_FILE_NO_HOME 3u
/** The folder of the file does not exist and cannot be made. */
#define ZTK_FILE_NO_FOLDER 4u
/**
 * This user has no permission. A function that stores a value keeps a file that
 * this user may not read under another name and starts a new one: read.result
 * then has this value, and store.result is ZTK_FILE_OK.
 */
#define ZTK_FILE_NOT_PERMITTED 5u
/** The file system is read-only. */
#define ZTK_FILE_READ_ONLY 6u
/** The file system or the user's quota is full. */
#define ZTK_FILE_FULL 7u
/**
 * The file cannot be read at the moment, for example because too many files are
 * open. The file was left as it is: nothing is stored in this case.
 */
#define ZTK_FILE_CANNOT_BE_READ_NOW 8u
/**
 * The file holds no property list. A function that stores a value keeps such a
 * file under another name and starts a new one: read.result then has this
 * value, and store.result is ZTK_FILE_OK.
 */
#define ZTK_FILE_DAMAGED 9u
/** A folder, a device or the like has the name of the file. */
#define ZTK_FILE_NOT_REGULAR 10u
/** Another error; the system code tells which. */
#define ZTK_FILE_FAILED 11u

/** What became of reading or storing. */
typedef struct ZTKFileOutcome {
  /** One of the ZTK_FILE_ constants. */
  uint32_t result;
  /** System code of the failure; 0 if there was none. */
  int32_t systemCode;
} ZTKFileOutcome;

/** The call had nothing to announce. */
#define ZTK_ANNOUNCEMENT_NONE 0u
/** The message bus took the announcement. */
#define ZTK_ANNOUNCEMENT_SENT 1u
/** This session has no message bus, or the library for it is not installed. */
#define ZTK_ANNOUNCEMENT_NO_BUS 2u
/** There is a message bus, but it did not take the announcement in time. */
#define ZTK_ANNOUNCEMENT_FAILED 3u

/** What became of the announcement. */
typedef struct ZTKAnnouncementOutcome {
  /** One of the ZTK_ANNOUNCEMENT_ constants. */
  uint32_t result;
  /** System code of the failure; 0 if there was none. */
  int32_t systemCode;
} ZTKAnnouncementOutcome;

/**
 * The record of one call. New members will only be added at the end.
 */
typedef struct ZTKOutcome {
  /** Set by the caller: sizeof(ZTKOutcome). */
  uint32_t size;
  /** Mixers that the call counted; 0 if it did not count. */
  uint32_t mixersFound;
  /**
   * Entries of mixers[] that belong to this call: mixersFound, at most
   * ZTK_OUTCOME_MIXERS.
   */
  uint32_t mixersListed;
  /** Reading a file: the settings file, a version file, a text file. */
  ZTKFileOutcome read;
  /** Storing the value in the settings file. */
  ZTKFileOutcome store;
  /** Announcing the change. */
  ZTKAnnouncementOutcome announcement;
  /** The mixers in the order of the bus. */
  ZTKMixerOutcome mixers[ZTK_OUTCOME_MIXERS];
} ZTKOutcome;

/**
 * Copies the record of the last call on this thread.
 *
 * @param[in,out] outcome  Its size member tells how many bytes may be written,
 *                         and stays as it is; the others are set. All are 0 if
 *                         this thread has made no call yet. A caller that was
 *                         built with an older header gets the members that it
 *                         knows.
 *
 * @retval 102 (ZTK_REJECTED)  outcome is null, or its size is below 4.
 * @retval 100 (ZTK_SUCCESS)   *outcome is set. Members that this library does
 *                             not know are 0.
 *
 * @note May be called from any thread, and answers for that thread only.
 */
ZTK_EXPORT ZTKResult ZTK_GetLastOutcome(ZTKOutcome *outcome);
/** @} */

#ifdef __cplusplus
}
#endif

#endif /* ZTKOUTCOME_H_ */
