// Pictures whose names tell where they were taken: shown over the map, one after another, with a
// page for outside viewers.
//
// The page is `ProgramFolder`\PIC.HTM, seven lines with the picture on a grey ground. Its path is
// the one that other programs know, written so that any browser reads it: HTML's own signs as
// entities,
// "%", "#", "?" and what is not ASCII as "%XX" of the path's bytes.
#pragma once

#include <optional>
#include <string>

#include "core/actions/map_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/picture_panel_controls.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "map/map_panels.h"
#include "core/timer.h"
#include "platform/desktop_actions.h"
#include "platform/files.h"

namespace zepril {

struct PictureViewerTools {
  Files& Disk;
  DesktopActions& Desktop;
  MapActions& Map;
  Timer& Timer1;
};

class PictureViewer final : public PicturePanel {
 public:
  // How long the cycle leaves a picture alone that was just chosen.
  static constexpr int kLookingMs = 30000;

  // Sets the events of the panel's controls. A click on the picture is a left press on the map.
  PictureViewer(const IdentityState& identity, MapViewState& view, PicturePanelControls& controls,
                MapControls& map, PictureViewerTools tools);
  PictureViewer(const PictureViewer&) = delete;
  PictureViewer& operator=(const PictureViewer&) = delete;

  // Shows picture `index`, 1-based, of `PictureNames`, and writes its page. Every redraw calls it
  // again: what is shown already is neither written nor read anew unless the file has changed.
  void ShowPicture(int index) override;
  // Hides the panel; the map is not drawn.
  void ClosePicture() override;
  void MapRedrawn() override;

 private:
  enum class Kind { Picture, Clip, Gone, None };

  std::string FolderPath() const;
  std::string FilePath(const std::string& name) const;
  void StepPicture(int step);
  void OpenOutside();
  void CloseByOperator();
  void ShowFile(const std::string& name);
  void ShowCaption();
  void WritePage();

  const IdentityState& identity_;
  MapViewState& view_;
  PicturePanelControls& controls_;
  MapControls& map_;
  PictureViewerTools tools_;

  // What is shown.
  bool shown_ = false;
  Kind kind_ = Kind::None;
  std::string path_;
  std::optional<FileStamp> stamp_;
  bool page_written_ = false;
};

// The page of a picture or clip, by its path as other programs know it. An AVI in any case of
// letters gets the attribute by which browsers once played clips.
std::string PicturePage(const std::string& native_path);

// "file://" and the path with everything escaped that an address can't hold.
std::string FileAddress(const std::string& native_path);

}  // namespace zepril
