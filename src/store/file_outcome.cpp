// SPDX-License-Identifier: MIT
#include "store/file_outcome.h"

#include <cerrno>

#include "outcome/outcome.h"

namespace ztk::store {
namespace {

using platform::property_list::ReadResult;
using platform::property_list::ReadState;

// Why a file that is there was not read.
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
      return outcome::Read(ZTK_FILE_OK);
    case ReadState::Absent:
      return outcome::Read(ZTK_FILE_ABSENT);
    case ReadState::Damaged:
      return outcome::Read(ZTK_FILE_DAMAGED);
    case ReadState::Unavailable:
      return outcome::Read(ReasonOfReading(result.error), result.error);
  }
}

void RecordStoring(const ReadResult &read, bool written, int error) {
  RecordReading(read);
  if (written) {
    outcome::Stored(ZTK_FILE_OK);
  } else if (read.state == ReadState::Unavailable) {
    outcome::Stored(ReasonOfReading(read.error), read.error);
  } else {
    outcome::Stored(ReasonOfWriting(error), error);
  }
}

void RecordReadingWithoutHome() { outcome::Read(ZTK_FILE_NO_HOME); }

void RecordStoringWithoutHome() { outcome::Stored(ZTK_FILE_NO_HOME); }

}  // namespace ztk::store
