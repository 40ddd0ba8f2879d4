// The main window: lays the widgets out and binds them to the program's controls. No arithmetic, no
// protocol.
#pragma once

#include <QStringListModel>
#include <QTimer>
#include <QWidget>

#include <memory>

#include "config/window_file.h"
#include "desktop/binder.h"
#include "desktop/lamp_widget.h"
#include "desktop/layer_panels.h"
#include "desktop/look.h"
#include "desktop/map_widget.h"
#include "desktop/panel_table.h"
#include "desktop/panels_over_map.h"
#include "desktop/side_columns.h"
#include "desktop/report_panels.h"
#include "desktop/transmit_panels.h"
#include "desktop/window_parts.h"
#include "platform/event.h"
#include "platform/qt/map_fonts.h"
#include "station/station_program.h"

class QBoxLayout;
class QSplitter;
class QTabWidget;

namespace zepril {

// What the program paints for the window.
struct WindowSurfaces {
  QtSurface& Map;
  QtSurface& Base;  // the second map window under it
  const QtSurface& Sun;
  const QtSurface& TxSymbol;
  const QtSurface& ObjectSymbol;
  const QtSurface& Weather;
};

class MainWindow final : public QWidget {
 public:
  MainWindow(StationProgram& program, QtLoop& loop, const MapFonts& fonts, WindowSurfaces surfaces,
             const Files& files);
  ~MainWindow() override { loop_.InputHeld() = nullptr; }

  MapWidget* Map() { return map_; }
  // The operator has closed the window (or the program wants to end), and no step is under way.
  Event<> Closed;
  void ControlsOut();
  // Where the window stands and which drawer is open, for the next run; to be given back before the
  // window is shown.
  WindowValues Kept() const;
  void TakeKept(const WindowValues& values);
  // The outermost step has ended: a close request that came inside it is carried out now.
  void StepEnded();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void CloseWhenAsked();
  QWidget* MakeBottomLine();
  QWidget* MakeDrawer();
  QWidget* MakeRawPage();
  void Arrange();
  void ShowDrawer();
  void ShowLamp();
  void ShowPage(QWidget* page, bool shown, Text title);
  void MakeRoomForTerminal(bool open);
  void ShareHeight();
  int RoomForChat() const;
  void OpenStations();
  void OpenMessageField();
  void FocusOn(const Control& control);
  void Press(const Button& control);
  void Switch(CheckBox& control);
  void PressControlKey(const QKeyEvent& event);
  void PressKey(QKeyEvent* event);
  void CloseTopmostPanel();

  StationProgram& program_;
  MainWindowControls& controls_;
  QtLoop& loop_;
  const Look& look_;
  Binder binder_;
  WindowParts parts_;
  SideColumns columns_;
  std::unique_ptr<LayerPanels> layer_panels_;
  std::unique_ptr<PanelsOverMap> panels_;
  std::unique_ptr<TransmitPanels> transmit_panels_;
  std::unique_ptr<ReportPanels> report_panels_;
  std::unique_ptr<PanelTable> panel_table_;

  MapWidget* map_ = nullptr;
  QWidget* left_column_ = nullptr;
  QWidget* right_column_ = nullptr;
  QBoxLayout* middle_ = nullptr;
  QTabWidget* drawer_ = nullptr;
  QSplitter* split_ = nullptr;
  QWidget* raw_page_ = nullptr;
  QWidget* terminal_page_ = nullptr;
  QWidget* chat_page_ = nullptr;
  QList<int> sizes_without_terminal_;
  QLabel* link_words_ = nullptr;  // "LOST 34 s", "paused"
  LampWidget* lamp_ = nullptr;
  QTimer lamp_timer_;
  QStringListModel raw_lines_;
  bool close_asked_ = false;
};

}  // namespace zepril
