// The start window: the settings that must be known before the main window opens, and START.
#pragma once

#include <QWidget>

#include "core/texts/text.h"
#include "desktop/binder.h"
#include "platform/event.h"
#include "platform/qt/map_fonts.h"
#include "station/start/start_panel.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QProgressBar;

namespace zepril {

class DeviceBox;

class StartWindow final : public QWidget {
 public:
  StartWindow(StartPanel& panel, QtLoop& loop, const MapFonts& fonts);

  void ControlsOut();
  // Progress of the sample maps at a first run; done >= total hides it.
  void ShowMapProgress(int done, int total);
  // The window was closed without START, or is asked to close while START is under way: then it
  // stays until that has come to its end.
  Event<> Closed;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QBoxLayout* StationColumn();
  QBoxLayout* RadioColumn();
  QWidget* AprsIsPanel();
  QBoxLayout* BottomLine();
  QLineEdit* Field(TextBox& control);
  void AddField(QGridLayout* grid, int row, TextBox& control);
  void AddInterface(QGridLayout* grid, int row, Text explanation, OptionButton& control);
  void AddPort(QGridLayout* grid, int row);
  void AddGps(QBoxLayout* column);
  void SetUpDeviceBox(DeviceBox* port, ComboBox& control);
  void AddSpeed(QGridLayout* grid, int row);
  QLabel* BoundLabel(Label& control);
  QLabel* FaultLabel(Label& control);

  StartPanel& panel_;
  QtLoop& loop_;
  Binder binder_;
  QFont fixed_font_;
  QLabel* progress_text_ = nullptr;
  QProgressBar* progress_ = nullptr;
};

}  // namespace zepril
