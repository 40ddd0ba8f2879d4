// Brings the stations of an area reply into the list of all stations.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

#include "core/state/map_view.h"
#include "core/state/settings.h"
#include "core/state/stores.h"
#include "core/symbol_table.h"
#include "platform/clock.h"
#include "reception/record_keeper.h"

namespace zepril {

struct AreaDecoderSections {
  const StoresState& Stores;
  const MapViewState& View;
  const SettingsState& Settings;
};

struct AreaDecoderTools {
  RecordKeeper& Keeper;
  const SymbolTable& Symbols;
  const Clock& LocalClock;
};

struct DecodedArea {
  int Stations = 0;
  int Stored = 0;  // of which something new was told
};

class AreaDecoder {
 public:
  AreaDecoder(AreaDecoderSections sections, AreaDecoderTools tools)
      : sections_(sections), tools_(tools) {}

  DecodedArea DecodeInetArea(std::string_view reply);

 private:
  bool IsThere(const StationRecord& record);

  AreaDecoderSections sections_;
  AreaDecoderTools tools_;
  std::unordered_set<std::string> calls_;  // that the list may hold: most are new to it
};

}  // namespace zepril
