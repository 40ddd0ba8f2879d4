// TX SETUP on the window: what the station is on the air.
#pragma once

#include "core/controls/main_window_controls.h"
#include "desktop/window_parts.h"
#include "platform/qt/qt_surface.h"

class QBoxLayout;
class QWidget;

namespace zepril {

class ScrollingPanel;

class TxSetupPanel {
 public:
  // `symbol`: where the station's symbol is painted.
  TxSetupPanel(WindowParts& parts, MainWindowControls& controls, QWidget& map,
               const QtSurface& symbol);
  TxSetupPanel(const TxSetupPanel&) = delete;
  TxSetupPanel& operator=(const TxSetupPanel&) = delete;

  // Puts it over the left part of the map, and over the columns where the map is too narrow.
  void Place();
  QWidget* Widget();

 private:
  void MakeStation(QBoxLayout* box, const QtSurface& symbol);
  void MakePath(QBoxLayout* box);
  void MakeLines(QBoxLayout* box);
  void MakeTimer(QBoxLayout* box);
  void MakeRadio(QBoxLayout* box);

  WindowParts& parts_;
  TransmitControls& transmit_;
  GateControls& gate_;
  TxSetupControls& controls_;
  QWidget& map_;
  ScrollingPanel* panel_;
};

}  // namespace zepril
