// The folders that a run writes to, made when they are missing.
#pragma once

#include "core/state/identity.h"
#include "platform/files.h"

namespace zepril {

inline void MakeDataFolders(Files& files, const IdentityState& identity) {
  files.MakeFolder(identity.TempFolder);
  for (const char* folder : {"\\LOG", "\\TRK", "\\POI"})
    files.MakeFolder(identity.MapSystemFolder + folder);
}

}  // namespace zepril
