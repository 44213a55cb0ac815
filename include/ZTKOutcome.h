/* SPDX-License-Identifier: MIT */
/**
 * @file ZTKOutcome.h
 * The effects of the last call of a ZTKFunc.h function on this thread.
 *
 * The result codes of ZTKFunc.h do not report failures below the interface: a
 * mixer that refuses a request, a file that cannot be written, a missing
 * message bus. The library records them instead. Get the record directly after
 * the call:
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
 * Each thread has one record. Every function of ZTKFunc.h that uses mixers or
 * files, or announces a change, starts a new record. If it rejects its
 * arguments, the record is empty. Functions that only read constant tables and
 * the functions that register callbacks do not change the record.
 *
 * The library only writes the record; its behaviour never depends on the
 * record.
 *
 * **System codes.** A field with the name systemCode contains the error number
 * of the operating system: on Linux an errno value such as ENOSPC, on macOS an
 * IOReturn, or an errno value for files. It is 0 if there was no error.
 * @{
 */

/**
 * The largest number of mixers in a record. A USB bus has addresses for 127
 * devices. If more mixers are attached to several buses, the others are counted
 * and receive the requests, but are not listed.
 */
#define ZTK_OUTCOME_MIXERS 127u

/** The call had no request of this kind for the mixer. */
#define ZTK_REQUEST_NONE 0u
/** The mixer accepted the value, or answered the query. */
#define ZTK_REQUEST_ACCEPTED 1u
/** The mixer refused the request (the USB term is a stall). */
#define ZTK_REQUEST_REFUSED 2u
/** The mixer did not answer in time. */
#define ZTK_REQUEST_SILENT 3u
/** The mixer was unplugged or switched off after it was counted. */
#define ZTK_REQUEST_GONE 4u
/** This user has no permission to open the mixer. */
#define ZTK_REQUEST_NOT_PERMITTED 5u
/** Another error; see the system code. */
#define ZTK_REQUEST_FAILED 6u

/** The result of one request to one mixer. */
typedef struct ZTKRequestOutcome {
  /** One of the ZTK_REQUEST_ constants. */
  uint32_t result;
  /**
   * 1 if the mixer could be opened. 0 if it could not be opened: then result is
   * the reason, and nothing was sent to the mixer.
   */
  uint32_t opened;
  /** Bytes of data that the mixer sent, 0 for a request that sets a value. */
  uint32_t length;
  /** System code of the failure; 0 if there was none. */
  int32_t systemCode;
} ZTKRequestOutcome;

/** The results of the requests to one mixer. A call makes at most these two. */
typedef struct ZTKMixerOutcome {
  /** The request that sets a value. */
  ZTKRequestOutcome write;
  /** The request that reads a status. Some setters read it after the change. */
  ZTKRequestOutcome read;
} ZTKMixerOutcome;

/** The call did not use this file. */
#define ZTK_FILE_NONE 0u
/** The file was read, or the value is stored. */
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
 * The file is not a property list. A function that stores a value keeps such a
 * file under another name and starts a new one: read.result then has this
 * value, and store.result is ZTK_FILE_OK.
 */
#define ZTK_FILE_DAMAGED 9u
/** A folder, a device or the like has the name of the file. */
#define ZTK_FILE_NOT_REGULAR 10u
/** Another error; see the system code. */
#define ZTK_FILE_FAILED 11u

/** The result of reading or storing. */
typedef struct ZTKFileOutcome {
  /** One of the ZTK_FILE_ constants. */
  uint32_t result;
  /** System code of the failure; 0 if there was none. */
  int32_t systemCode;
} ZTKFileOutcome;

/** The call had nothing to announce. */
#define ZTK_ANNOUNCEMENT_NONE 0u
/** The message bus accepted the announcement. */
#define ZTK_ANNOUNCEMENT_SENT 1u
/** This session has no message bus, or the library for it is not installed. */
#define ZTK_ANNOUNCEMENT_NO_BUS 2u
/** There is a message bus, but it did not accept the announcement in time. */
#define ZTK_ANNOUNCEMENT_FAILED 3u

/** The result of the announcement. */
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
  /** The number of mixers that the call counted; 0 if it did not count. */
  uint32_t mixersFound;
  /**
   * The number of entries of mixers[] that are set: mixersFound, or
   * ZTK_OUTCOME_MIXERS if that is smaller.
   */
  uint32_t mixersListed;
  /** Result of reading a file with settings, a version or texts. */
  ZTKFileOutcome read;
  /** Result of storing the value in the settings file. */
  ZTKFileOutcome store;
  /** Result of announcing the change. */
  ZTKAnnouncementOutcome announcement;
  /** The mixers in the order of the bus. */
  ZTKMixerOutcome mixers[ZTK_OUTCOME_MIXERS];
} ZTKOutcome;

/**
 * Copies the record of the last call on this thread.
 *
 * @param[in,out] outcome  Its member size is the number of bytes that may be
 *                         written, and is not changed. The other members are
 *                         set; all are 0 if this thread has made no call yet. A
 *                         caller that was built with an older header gets the
 *                         members that it knows.
 *
 * @retval 102 (ZTK_REJECTED)  outcome is null, or its size is below 4.
 * @retval 100 (ZTK_SUCCESS)   *outcome is set. Members that this library does
 *                             not know are 0.
 *
 * @note May be called from any thread. Each thread has its own record.
 */
ZTK_EXPORT ZTKResult ZTK_GetLastOutcome(ZTKOutcome *outcome);
/** @} */

#ifdef __cplusplus
}
#endif

#endif /* ZTKOUTCOME_H_ */
