// The columns beside the map: read-outs, scales and files at the left, stations at the right.
#pragma once

#include "core/controls/main_window_controls.h"
#include "desktop/window_parts.h"

class QBoxLayout;
class QComboBox;
class QWidget;

namespace zepril {

class SideColumns {
 public:
  SideColumns(WindowParts& parts, MainWindowControls& controls)
      : parts_(parts), controls_(controls) {}

  QWidget* MakeLeftColumn();
  QWidget* MakeRightColumn();

 private:
  QWidget* MakeOutside();
  QWidget* MakeReadouts();
  QWidget* MakeScales();
  QComboBox* MakeFileList(ComboBox& control);
  QWidget* MakeFiles();
  QWidget* MakeMoni1();
  QBoxLayout* MakeClassRow();
  QWidget* MakeMoniAll();
  QWidget* MakeTransmit();
  QWidget* MakeInternet();

  WindowParts& parts_;
  MainWindowControls& controls_;
};

}  // namespace zepril
