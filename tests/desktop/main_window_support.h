// A station on an engine that the test plays, and its window.
#pragma once

#include <QApplication>
#include <QImage>
#include <QWheelEvent>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "desktop/main_window.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "platform/absent_devices.h"
#include "platform/native/native_files.h"
#include "tests/desktop/desktop_support.h"
#include "tests/desktop/loopback_engine.h"
#include "tests/doubles/machine.h"
#include "tests/doubles/recorded_desktop.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/temp_folder.h"
#include "tests/map/bmp_maker.h"

namespace zepril {

inline constexpr int kTileInk = 9;

// A station on an engine that the test plays, with two tiles of one ink under its centre, and its
// window. The timers are not driven: a tick comes when the test wants it.
class MainWindowTest : public ::testing::Test {
 protected:
  MainWindowTest() {
    files.MakeFolder("C:\\ZEPRIL\\U33\\M0050");
    for (const char* tile : {"58000350.BMP", "58000400.BMP"}) {
      files.Write(std::string("C:\\ZEPRIL\\U33\\M0050\\") + tile, FourBitTile(kTileInk));
    }
    files.Write("C:\\ZEPRIL\\ZEPRIL.INI",
                "USER=QX7KB\r\nMSYS=U33\r\nUMAPS=C:\\ZEPRIL\\U33\r\nTEMP=C:\\ZEPRIL\\TEMP\r\n"
                "MODEM=0\r\nCALL=QX1AB-9\r\nLOGS=1\r\nIONA=0\r\nUTN=5817.860\r\nUTE=391.394\r\n"
                "UUN=5830\r\nUUE=380\r\n");
    socket.OnConnect = [this] { socket.SetState(SocketState::Connected); };
    EXPECT_TRUE(fonts.LoadFonts(QStringLiteral(ZEPRIL_SOURCE_DIR "/data/fonts")));
    program = std::make_unique<StationProgram>(
        MachineOf(files, loop, loop, dialogs, desktop,
                  {{&socket},
                   {&modem},
                   {&map_surface, &base_surface, &sun_surface, &tx_symbol_surface,
                    &object_symbol_surface, &weather_surface}}));
    loop.RunStep([this] { EXPECT_TRUE(program->Start("C:\\ZEPRIL", 32)); });
    State().Map.MapTileKm = 50.0;
    State().Map.ZoomFactor = 1.0;
    window = std::make_unique<MainWindow>(
        *program, loop, fonts,
        WindowSurfaces{map_surface, base_surface, sun_surface, tx_symbol_surface,
                       object_symbol_surface, weather_surface},
        files);
    window->Closed = [this] { ++closed; };
    loop.ControlsOut = [this] { window->ControlsOut(); };
    loop.StepEnded = [this] { window->StepEnded(); };
    window->show();
    window->activateWindow();
    EXPECT_TRUE(PumpUntil([this] { return QApplication::activeWindow() == window.get(); }));
  }
  ~MainWindowTest() override {
    loop.ControlsOut = nullptr;
    loop.StepEnded = nullptr;
  }

  RuntimeState& State() { return program->State(); }
  MainWindowControls& Controls() { return program->Controls(); }
  MapWidget* Map() { return window->Map(); }
  void Tick() { loop.RunStep(program->Timer1().Elapsed); }
  void Hear(const std::string& from, const std::string& information) {
    socket.Deliver(MonitoredFrame(from, information));
    Tick();
  }
  // A station in the middle of the map.
  void HearStationAtCentre() { Hear("N0CALL", "=5230.00N/01324.00E>Test"); }
  PixelPoint PixelOfLastStation() {
    const StationStore& store = State().Stores.MoniAllRecords;
    return MarkPixel(State().Map, store.At(store.Count()).NorthKm(),
                     store.At(store.Count()).EastKm());
  }
  QImage MapPicture() { return Map()->grab().toImage(); }
  void Turn(int angle) {
    const QPointF at(20, 20);
    QWheelEvent turn(at, Map()->mapToGlobal(at), QPoint(), QPoint(0, angle), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Map(), &turn);
  }
  void Resize(int width, int height) {
    window->resize(width, height);
    Pump();
    Pump();
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  QtLoop loop;
  ScriptedDialogs dialogs;
  RecordedDesktop desktop;
  FakeSocket socket;
  AbsentSerialPort modem;
  MapFonts fonts;
  QtSurface map_surface{880, 700, fonts};
  QtSurface base_surface{880, 700, fonts};
  QtSurface sun_surface{361, 91, fonts};
  QtSurface tx_symbol_surface{22, 22, fonts};
  QtSurface object_symbol_surface{22, 22, fonts};
  QtSurface weather_surface{161, 161, fonts};
  std::unique_ptr<StationProgram> program;
  std::unique_ptr<MainWindow> window;
  int closed = 0;
};

inline int CountOf(const QImage& picture, const QRect& region, const QColor& colour) {
  int count = 0;
  const QRect inside = region & picture.rect();
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      if (picture.pixelColor(x, y) == colour) ++count;
    }
  }
  return count;
}

inline QColor TileColour() {
  return QColor::fromRgb(TestPalette(16)[kTileInk]);
}

}  // namespace zepril
