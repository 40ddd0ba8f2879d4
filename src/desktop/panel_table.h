// The panels over the map and beside it as one table: widget, place, the control that shows it,
// what closes it.
#pragma once

#include <functional>
#include <vector>

#include "core/controls.h"

class QWidget;

namespace zepril {

struct MainWindowControls;
class LayerPanels;
class PanelsOverMap;
class ReportPanels;
class TransmitPanels;

struct PanelRow {
  QWidget* Widget;
  std::function<void()> Place;    // on the map's present size; empty: it keeps its place
  const Control* Frame;           // shows it
  const Button* Close = nullptr;  // what Esc presses; without one it goes by itself
  bool IsPlacedWhileHidden = false;
};

class PanelTable {
 public:
  // The panels and the map must outlive the table.
  PanelTable(const MainWindowControls& controls, QWidget& map, LayerPanels& layers,
             PanelsOverMap& over_map, TransmitPanels& transmit, ReportPanels& reports);

  // Puts each panel that is shown to its place.
  void Place() const;
  // The button that closes what lies on top; none when nothing is open that Esc closes.
  const Button* CloseOfTopmost() const;

 private:
  std::vector<PanelRow> rows_;
};

}  // namespace zepril
