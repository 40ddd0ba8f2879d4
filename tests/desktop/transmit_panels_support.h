// The window with the panels of the transmitter and of its modem, opened without their logic.
#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>

#include <string>

#include "tests/desktop/main_window_support.h"

namespace zepril {

class TransmitPanelsTest : public MainWindowTest {
 protected:
  TxSetupControls& Tx() { return Controls().TxSetup; }
  ObjectSetupControls& Object() { return Controls().ObjectSetup; }
  TerminalControls& Terminal() { return Controls().Terminal; }

  void OpenTxSetup() {
    loop.RunStep([this] { Tx().Frame4.Visible = true; });
    // As with an SCS TNC, which has all of it.
    loop.RunStep([this] {
      for (Control* control : std::initializer_list<Control*>{
               &Tx().TxLevel, &Tx().TxLevelLabel, &Tx().CrossField, &Tx().CrossUp, &Tx().CrossDown,
               &Tx().DigiBox, &Tx().CrossDown, &Tx().DigiBox, &Controls().Transmit.Check2,
               &Controls().Gate.Check15}) {
        control->Visible = true;
        control->Enabled = true;
      }
      for (OptionButton& speed : Tx().Speeds)
        speed.Visible = true;
    });
    Pump();
  }
  void OpenObjectSetup() {
    loop.RunStep([this] { Object().Frame11.Visible = true; });
    Pump();
  }
  void OpenTerminal() {
    Terminal().Text19.KeyTyped = nullptr;
    Terminal().Text19.KeyTyped = [this](char byte) { typed += byte; };
    loop.RunStep([this] {
      Terminal().Frame19.Visible = true;
      Terminal().Text19.FocusWanted = true;
    });
    Pump();
  }
  void Click(const char* name) { QTest::mouseClick(Find<>(*window, name), Qt::LeftButton); }
  // The place of a widget on the window.
  QRect PlaceOf(const QWidget* widget) {
    return {widget->mapTo(window.get(), QPoint()), widget->size()};
  }
  // What is seen on it at a point.
  QColor ColourOf(const char* name, QPoint at) {
    const QImage picture = Find<>(*window, name)->grab().toImage();
    return picture.pixelColor((QPointF(at) * picture.devicePixelRatio()).toPoint());
  }

  std::string typed;
};

}  // namespace zepril
