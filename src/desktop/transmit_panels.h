// The set-up panels of the transmitter: TX SETUP, and OBJECT SETUP, which leaves the middle of the
// map free because the map is moved meanwhile.
#pragma once

#include "core/controls/main_window_controls.h"
#include "desktop/tx_setup_panel.h"
#include "desktop/window_parts.h"
#include "platform/qt/qt_surface.h"

class QWidget;

namespace zepril {

class ScrollingPanel;

class TransmitPanels {
 public:
  // Where the symbols of the station and of its object are painted.
  struct Symbols {
    const QtSurface& OfStation;
    const QtSurface& OfObject;
  };

  // They stand on the widget that the map lies on. All must outlive them.
  TransmitPanels(WindowParts& parts, MainWindowControls& controls, QWidget& map, Symbols symbols);
  TransmitPanels(const TransmitPanels&) = delete;
  TransmitPanels& operator=(const TransmitPanels&) = delete;

  QWidget* TxSetup();
  QWidget* ObjectSetup();
  void PlaceTxSetup() { tx_setup_.Place(); }
  // At the map's top left; where that would reach its centre, over the column beside it.
  void PlaceObjectSetup();

 private:
  void MakeObjectSetup(const QtSurface& symbol);

  WindowParts& parts_;
  MainWindowControls& controls_;
  QWidget& map_;
  TxSetupPanel tx_setup_;
  ScrollingPanel* object_;
};

}  // namespace zepril
