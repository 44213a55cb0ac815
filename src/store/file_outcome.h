// SPDX-License-Identifier: MIT
//
// Enters what became of a file into the record of the call (ZTKOutcome.h).
#ifndef ZTK_STORE_FILE_OUTCOME_H_
#define ZTK_STORE_FILE_OUTCOME_H_

#include "platform/property_list.h"

namespace ztk::store {

void RecordReading(const platform::property_list::ReadResult &result);

// A file that was to be changed: `read` tells how reading it before ended,
// `error` is the system's error number of writing it, or 0 where the system did
// not say. `written` is false when it was not replaced.
void RecordStoring(const platform::property_list::ReadResult &read,
                   bool written, int error);

// The user has no home folder, so there is no file.
void RecordReadingWithoutHome();
void RecordStoringWithoutHome();

}  // namespace ztk::store

#endif  // ZTK_STORE_FILE_OUTCOME_H_
