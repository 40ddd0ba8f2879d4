// The panels that lie over the map: station record, alarm, set-ups, lists, palette, banner,
// notices.
#pragma once

#include <QStringListModel>

#include "core/controls/main_window_controls.h"
#include "core/state/map_view.h"
#include "desktop/window_parts.h"

class QFrame;
class QLabel;
class QWidget;

namespace zepril {

class PanelsOverMap {
 public:
  PanelsOverMap(WindowParts& parts, MainWindowControls& controls, const MapViewState& view,
                QWidget& map);
  PanelsOverMap(const PanelsOverMap&) = delete;
  PanelsOverMap& operator=(const PanelsOverMap&) = delete;

  // Puts each to its place on the map's present size.
  void Place();
  // The button that closes what lies on top; none when no panel is open.
  const Button* CloseOfTopmost() const;

 private:
  void MakePanels();
  void MakeRecordPanel();
  void KeepTailTogether();
  void MakeAlarmPanel();
  void MakeQthSetup();
  void MakeHeardList();
  void MakePalettePanel();
  void MakeNotices();
  void PlaceNotices();

  WindowParts& parts_;
  MainWindowControls& controls_;
  const MapViewState& view_;
  QWidget& map_;
  QStringListModel heard_lines_;

  QFrame* record_panel_ = nullptr;
  QFrame* alarm_panel_ = nullptr;
  QFrame* qth_panel_ = nullptr;
  QFrame* heard_panel_ = nullptr;
  QFrame* palette_panel_ = nullptr;
  QLabel* banner_ = nullptr;
  QLabel* link_notice_ = nullptr;
  QLabel* file_notice_ = nullptr;
  QLabel* mode_notice_ = nullptr;
  QLabel* record_text_ = nullptr;
};

}  // namespace zepril
