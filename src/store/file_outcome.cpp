// SPDX-License-Identifier: MIT
#include "store/file_outcome.h"

#include <cerrno>

#include "outcome/outcome.h"

namespace ztk::store {
namespace {

using platform::property_list::ReadResult;
using platform::property_list::ReadState;

// Returns the reason why an existing file was not read.
std::uint32_t ReasonOfReading(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
      return ZTK_FILE_NOT_PERMITTED;
    case EISDIR:
    case EINVAL:
      return ZTK_FILE_NOT_REGULAR;
    default:
      return ZTK_FILE_CANNOT_BE_READ_NOW;
  }
}

std::uint32_t ReasonOfWriting(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return ZTK_FILE_NO_FOLDER;
    case EACCES:
    case EPERM:
      return ZTK_FILE_NOT_PERMITTED;
    case EROFS:
      return ZTK_FILE_READ_ONLY;
    case ENOSPC:
    case EDQUOT:
      return ZTK_FILE_FULL;
    case EISDIR:
    case EINVAL:
      return ZTK_FILE_NOT_REGULAR;
    default:
      return ZTK_FILE_FAILED;
  }
}

}  // namespace

void RecordReading(const ReadResult &result) {
  switch (result.state) {
    case ReadState::Read:
      return outcome::RecordFileRead(ZTK_FILE_OK);
    case ReadState::Absent:
      return outcome::RecordFileRead(ZTK_FILE_ABSENT);
    case ReadState::Damaged:
      return outcome::RecordFileRead(ZTK_FILE_DAMAGED);
    case ReadState::Unavailable:
      return outcome::RecordFileRead(ReasonOfReading(result.error),
                                     result.error);
  }
}

void RecordStoring(const ReadResult &read, bool written, int error) {
  RecordReading(read);
  if (written) {
    outcome::RecordFileStored(ZTK_FILE_OK);
  } else if (read.state == ReadState::Unavailable) {
    outcome::RecordFileStored(ReasonOfReading(read.error), read.error);
  } else {
    outcome::RecordFileStored(ReasonOfWriting(error), error);
  }
}

void RecordReadingWithoutHome() { outcome::RecordFileRead(ZTK_FILE_NO_HOME); }

void RecordStoringWithoutHome() { outcome::RecordFileStored(ZTK_FILE_NO_HOME); }

}  // namespace ztk::store
