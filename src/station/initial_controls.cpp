// What is closed, hidden and named before anything has happened.
#include "station/initial_controls.h"

#include <initializer_list>

#include "core/controls/main_window_controls.h"
#include "core/texts/form1_texts.h"

namespace zepril {
namespace {

void HidePanels(MainWindowControls& c) {
  for (Control* panel :
       std::initializer_list<Control*>{&c.Record.Frame1,        &c.Picture.Frame8,
                                       &c.Chat.Frame3,          &c.Chat.Frame7,
                                       &c.Status.Text10,        &c.Status.Frame12,
                                       &c.Emergency.Frame14,    &c.Weather.Frame15,
                                       &c.Record.Command40,     &c.Qth.Frame2,
                                       &c.Palette.PalettePanel, &c.MoniAll.HeardPanel,
                                       &c.Map.PictureBase,      &c.Raw.RawList,
                                       &c.Gps.GpsInfo,          &c.Gps.GpsNote,
                                       &c.Status.FileNotice,    &c.Status.LinkNotice,
                                       &c.Places.PoiPanel,      &c.Iono.Frame18,
                                       &c.Sun.SunPanel,         &c.Progress.ProgressPanel,
                                       &c.TxSetup.Frame4,       &c.ObjectSetup.Frame11,
                                       &c.Terminal.Frame19,     &c.Terminal.Label49}) {
    panel->Visible = false;
  }
}

// Buttons that step on while they are held.
void SetSteppers(MainWindowControls& c) {
  constexpr int kStepMs = 200;
  TxSetupControls& t = c.TxSetup;
  ObjectSetupControls& o = c.ObjectSetup;
  for (Button* held : {&t.TxIntervalDown, &t.TxIntervalUp, &t.SymbolDown, &t.SymbolUp,
                       &o.ObjectSymbolDown, &o.ObjectSymbolUp}) {
    held->RepeatMs = kStepMs;
  }
}

}  // namespace

void SetInitialControls(MainWindowControls& c) {
  constexpr int kEnglishWithToolTips = 11;
  HidePanels(c);
  NameMainWindow(c);
  SetSteppers(c);
  SetMainWindowLabels(c, kEnglishWithToolTips);
}

}  // namespace zepril
