// What the files of tracks and of places are tested in: a disk in memory, the sections, the boxes,
// and what is asked of other rooms.
#pragma once

#include <string>
#include <vector>

#include "core/controls.h"
#include "core/controls/map_controls.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/state/settings.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/scripted_dialogs.h"

namespace zepril {

inline std::string FileOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines)
    text += line + "\r\n";
  return text;
}

struct PointFilesWorld {
  PointFilesWorld() { Identity.MapSystemFolder = R"(C:\Z\U33)"; }

  // What the window does when an entry is chosen, or a name typed.
  static void ChooseIn(ComboBox& list, const std::string& name) {
    for (std::size_t i = 0; i < list.Items.size(); ++i) {
      if (list.Items[i] == name) list.Select(static_cast<int>(i));
    }
    list.Change();
  }
  static void TypeIn(ComboBox& list, const std::string& name) {
    list.Text.clear();
    for (char c : name) {
      list.Text += c;
      list.Change();
    }
  }

  MemoryFiles Disk;
  IdentityState Identity;
  MapViewState View;
  SettingsState Settings;
  PlacesState Places;
  MapControls Map;
  ScriptedDialogs Boxes;
  RecordedActions Up;
  RecordedProgress LongWork;
};

}  // namespace zepril
