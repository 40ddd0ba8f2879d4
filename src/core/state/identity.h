// Who the station is and where its files lie.
#pragma once

#include <string>

namespace zepril {

struct IdentityState {
  std::string ProgramVersion = "8.08";
  std::string MyCall;      // own call sign, upper case
  std::string MySsid;      // as typed, may be empty
  std::string MyCallFull;  // on the air: MyCall, with "-" and MySsid when that is 1 to 15
  int TxAllowed = 0;       // 1 when the third character of MyCall is a digit

  std::string ProgramFolder;              // where the configuration file lies
  std::string MapSystemFolder;            // ProgramFolder \ MapZoneName: LOG, TRK, POI lie under it
  std::string MapsPath = R"(C:\ZEPRIL)";  // scale folders and UTMPICS
  std::string TempFolder;                 // index files and tile copies
  std::string MapZoneName = "U33";        // "U" and the UTM zone of all maps
};

}  // namespace zepril
