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

  struct Widgets {
    QFrame* Record = nullptr;
    QFrame* Alarm = nullptr;
    QFrame* Qth = nullptr;
    QFrame* Heard = nullptr;
    QFrame* Palette = nullptr;
    QLabel* Banner = nullptr;
    QLabel* LinkNotice = nullptr;
    QLabel* FileNotice = nullptr;
    QLabel* ModeNotice = nullptr;
    QLabel* GpsLine = nullptr;
    QLabel* GpsNote = nullptr;
  };
  const Widgets& Made() const { return made_; }

  // At the map's bottom, as wide as its line.
  void PlaceRecord();
  // At the map's lower edge, or above an open record; under all panels.
  void PlaceGpsLine(QLabel* line);
  // At the map's right, above an open record.
  void PlaceHeard();

 private:
  void MakePanels();
  void MakeRecordPanel();
  void KeepTailTogether();
  void MakeAlarmPanel();
  void MakeQthSetup();
  void MakeHeardList();
  void MakePalettePanel();
  void MakeNotices();
  void MakeGpsLine();

  WindowParts& parts_;
  MainWindowControls& controls_;
  const MapViewState& view_;
  QWidget& map_;
  QStringListModel heard_lines_;

  Widgets made_;
  QLabel* record_text_ = nullptr;
};

}  // namespace zepril
