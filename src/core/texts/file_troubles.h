// Why a file can't be read or written: words behind a colon.
#pragma once

#include "core/texts/text.h"
#include "platform/files.h"

namespace zepril {
namespace file_troubles {

inline constexpr Text kNotDone{"it could not be done"};
inline constexpr Text kDiskFull{"the disk is full"};
inline constexpr Text kNoPermission{"there is no permission"};
inline constexpr Text kDiskReadOnly{"the disk is read only"};
inline constexpr Text kFolderMissing{"its folder is missing"};
inline constexpr Text kNoOrdinaryFile{"it is no ordinary file"};
inline constexpr Text kNameTaken{"another file has its name"};
inline constexpr Text kDiskError{"the disk reports an error"};
inline constexpr Text kTooLarge{"it is too large"};
inline constexpr Text kRefused{"the system refuses it"};

}  // namespace file_troubles

constexpr Text WordsOf(FileTrouble trouble) {
  switch (trouble) {
    case FileTrouble::DiskFull:
      return file_troubles::kDiskFull;
    case FileTrouble::NoPermission:
      return file_troubles::kNoPermission;
    case FileTrouble::DiskReadOnly:
      return file_troubles::kDiskReadOnly;
    case FileTrouble::FolderMissing:
      return file_troubles::kFolderMissing;
    case FileTrouble::NoOrdinaryFile:
      return file_troubles::kNoOrdinaryFile;
    case FileTrouble::NameTaken:
      return file_troubles::kNameTaken;
    case FileTrouble::DiskError:
      return file_troubles::kDiskError;
    case FileTrouble::TooLarge:
      return file_troubles::kTooLarge;
    case FileTrouble::Refused:
      return file_troubles::kRefused;
    case FileTrouble::NotDone:
      break;
  }
  return file_troubles::kNotDone;
}

}  // namespace zepril
