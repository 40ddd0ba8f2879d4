// The start window: the few settings that matter on the first day, and START.
#pragma once

#include <QWidget>

#include <functional>

#include "desktop/binder.h"
#include "platform/qt/map_fonts.h"
#include "station/start_panel.h"

class QGridLayout;
class QLabel;
class QProgressBar;

namespace zepril {

class StartWindow final : public QWidget {
 public:
  StartWindow(StartPanel& panel, QtLoop& loop, const MapFonts& fonts);

  void ControlsOut() { binder_.ControlsOut(); }
  // Progress of the sample maps at a first run; done >= total hides it.
  void ShowMapProgress(int done, int total);
  // The window was closed without START.
  std::function<void()> Closed;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddField(QGridLayout* grid, int row, const char* name, const char* text, TextBox& control);
  void AddInterface(QGridLayout* grid, int row, const char* name, const char* explanation,
                    OptionButton& control);

  StartPanel& panel_;
  QtLoop& loop_;
  Binder binder_;
  QFont fixed_font_;
  QLabel* progress_text_ = nullptr;
  QProgressBar* progress_ = nullptr;
};

}  // namespace zepril
