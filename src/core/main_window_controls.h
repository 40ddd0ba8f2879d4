// Every control of the main window `Form1`, in groups; a room takes the groups that it handles. The
// names are the program's own; object names of the widgets are the same.
#pragma once

#include <array>
#include <string>

#include "core/controls.h"

namespace zepril {

// The window itself.
struct WindowControls {
  std::string Title;
  PointerShape Pointer = PointerShape::Default;
  int WidthPx = 1280;
  int HeightPx = 800;
  int SidePanelWidthPx = 121;
  bool MaximiseWanted = false;  // taken and cleared by the desktop
};

// The map and the bar above it.
struct MapControls {
  PictureBox Picture1;     // the map
  PictureBox PictureBase;  // second map window under it: the plain form of a map type
  Button Command1;         // next coarser scale
  Button Command2;         // next finer scale
  Button Command7;         // zoom out by 2
  Button Command8;         // zoom in by 2
  Button Command9;         // zoom 1
  Button Command12;        // centre button "MAP"
  OptionButton Option1;    // follow the own position
  OptionButton Option2;    // follow MONI 1
  CheckBox Check4;         // coordinate grid
  CheckBox Check9;         // distance circles
  CheckBox Check12;        // picture marks
  CheckBox Check14;        // track display
  Button Command72;        // brightness
  Button Command73;        // places
  Button Command59;        // save map window
  Label ScaleText;         // text of the scale bar
};

// The three read-outs and the station line.
struct ReadoutControls {
  Label Label1;  // centre, upper caption
  Label Label2;  // centre, lower caption
  Label Label3;  // cursor
  Label Label4;
  Label Label7;  // monitored station
  Label Label8;
  Label Label11;  // station line
};

// Six scale rows, coarse to fine: M5000 to M0002.
struct ScaleControls {
  Frame ScalePanel;
  std::array<ComboBox, 6> Folder;    // Combo3 to Combo8
  std::array<CheckBox, 6> FrameBox;  // tile frames of the scale
  std::array<bool, 6> Covered{};     // a tile lies under the centre
  Button Command5;                   // all frame boxes on
  Button Command6;                   // all frame boxes off
  Button Command37;                  // scan the library again
};

// The sixteen inks of a tile.
struct PaletteControls {
  Frame PalettePanel;
  std::array<OptionButton, 16> Optionink;
  Button Command42;  // no ink chosen
  Button Command43;  // reset and close
};

// MONI 1.
struct Moni1Controls {
  ComboBox Combo9;   // call, and the calls that have a log
  Label Label6;      // count of records
  FillBar Label17;   // fill bar
  Label Label9;      // date and time of the last record
  Label Label10;     // "TEXT: " line
  Button Command17;  // steps TrackStyle
  CheckBox Check1;   // distance alarm
  CheckBox Check22;  // internet
  CheckBox Check27;  // internet scan
};

// MONI ALL.
struct MoniAllControls {
  Button Command13;  // steps the label level
  Label Label16;     // level or "WX"
  CheckBox Check10;  // class 2
  CheckBox Check11;  // class 1
  CheckBox Check13;  // class 0; third state: only if moved
  CheckBox Check19;  // class 3
  CheckBox Check25;  // class 4
  CheckBox Check24;  // directly heard stations only
  CheckBox Check3;   // distance alarm over all stations
  CheckBox Check23;  // internet
  FillBar Label5;    // fill bar
  TextBox Text15;    // call to find
  Button Command14;  // FIND
  Button Command3;   // list of heard stations
  ListBox HeardList;
  std::array<OptionButton, 4> HeardOrder;  // above its columns: call, age, distance, direction
  Frame HeardPanel;
};

// The panel of a station's record.
struct RecordPanelControls {
  Frame Frame1;
  Label Label19;     // "QTH=" or "DELETE"
  Label Label20;     // the record
  Button Command18;  // "<" or "<X"
  Button Command19;  // ">" or "X>"
  Button Command10;  // PING
  Button Command41;  // prepare CHAT
  Button Command11;  // make the station MONI 1
  Button Command40;  // WX panel
  Button Command36;  // highlight
  Button Command23;  // close
};

// Track files.
struct TrackControls {
  ComboBox Combo1;   // the files; shown is the one that is loaded
  Button Command68;  // previous file
  Button Command69;  // next file
  Button Frame10;    // centre to the end of the track
};

// Place files, and the panel in which a place is added, renamed or removed.
struct PlaceControls {
  ComboBox Combo2;  // the files; a name that is typed makes a new one
  Button PoiNew;    // opens the panel for a new place
  Frame PoiPanel;
  Label Label14;     // what the name field does
  TextBox Text4;     // name of the place
  Button PoiOk;      // applies the name
  Button PoiClose;   // leaves the place as it is
  Button Command64;  // " POS->CENTER": the place moves to the map centre
  Button Command67;  // "OPEN LINK"
};

// The geo-referenced picture that fills the map window.
struct PicturePanelControls {
  Frame Frame8;
  ImageView Picture;  // a click centres the map where it was taken
  Label PictureName;
  Button Command29;  // previous picture
  Button Command30;  // next picture
  Button Command70;  // open it outside
  Button Command71;  // close it
};

// "Input of ionospherical data".
struct IonoControls {
  Frame Frame18;
  TextBox Text11;         // SUNSPOT(R)
  TextBox Text12;         // K
  CheckBox FoptDetailed;  // circles show the three values in place of "Fopt="
  Button IonoOk;
  Button IonoClose;
};

// The sun's path over a point of the map, while the right button is held there.
struct SunControls {
  static constexpr std::size_t kRows = 6;
  Frame SunPanel;
  Label SunTitle;
  PictureBox SunPlot;
  std::array<Label, kRows> SunNames;
  std::array<Label, kRows> SunValues;
};

// Long work: what is done and how far it is.
struct ProgressControls {
  Frame ProgressPanel;
  Label ProgressText;
  FillBar ProgressBar;
};

// Transmission switches.
struct TransmitControls {
  CheckBox Check6;     // TX
  Label TxOutcome;     // what became of the last frame, for some seconds
  FillBar NextBeacon;  // fills towards the next report of the own position
  CheckBox Check18;    // OBJECT TX
  CheckBox Check7;     // CHAT
  CheckBox Check8;     // messages from and to me only
  CheckBox Check16;    // auto answer
  CheckBox Check15;    // IGATE
  CheckBox Check2;     // HF-DUAL
  TextBox Text2;       // addressee
  TextBox Text3;       // message
  Frame Frame3;        // chat panel
  Frame Frame7;        // chat log
};

// TX SETUP: what the station is on the air.
struct TxSetupControls {
  static constexpr std::size_t kLines = 6;
  static constexpr std::size_t kPaths = 4;
  static constexpr std::size_t kQuick = 6;

  Frame Frame4;
  TextBox TxSsid;
  TextBox TxDestinationField;
  TextBox TxPathField;
  std::array<Button, kPaths> PathMemory;  // left click takes the path, right click stores it
  std::array<Button, kQuick> PathQuick;   // append their caption to the path
  Button PathClear;
  std::array<TextBox, kLines> InfoField;
  std::array<CheckBox, kLines> fr4ta;     // ACTIVE
  std::array<Button, kLines> InfoMemory;  // the text is in the tool tip
  TextBox TxInterval;                     // minutes, or "MANUAL"
  Button TxIntervalUp;
  Button TxIntervalDown;
  Button SymbolDown;
  Button SymbolUp;
  Label SymbolName;  // row of the table
  PictureBox SymbolPicture;
  int SymbolIndex = 0;
  TextBox TxOverlayField;
  CheckBox TxTimestampBox;  // "TX TIMESTAMP (GPS)"
  CheckBox DigiBox;
  Label TxLevelLabel;
  TextBox TxLevel;                     // mV
  std::array<OptionButton, 5> Speeds;  // Option3 to Option7: RPR 300, 300, 1200, 9600, 19200
  Label CrossField;                    // second mode
  Button CrossDown;
  Button CrossUp;
  Label CallNotice;  // beside OK: what OK does not do
  Button TxOk;
  Button TxAbort;
};

// OBJECT SETUP.
struct ObjectSetupControls {
  Frame Frame11;
  TextBox ObjectNameField;
  TextBox ObjectTextField;
  TextBox ObjectOverlayField;
  Button ObjectSymbolDown;
  Button ObjectSymbolUp;
  Label ObjectSymbolName;
  PictureBox ObjectSymbolPicture;
  int SymbolIndex = 0;
  Button ObjectOk;
  Button Command31;  // DELETE OBJECT
  Button Command32;  // CANCEL
};

// The terminal of a serial modem.
struct TerminalControls {
  Button Command65;  // opens it
  Frame Frame19;
  TextBox Text19;    // typed
  TextBox Text20;    // received
  Label Label47;     // what it stops
  Button Command66;  // closes it
  Label Label49;     // notice of the temporary mode
};

// Raw list.
struct RawListControls {
  Button Command57;  // opens and closes it
  ListBox RawList;
  TextBox Text14;    // text to search
  Button Command38;  // search
};

// Status line, banner, alarms.
struct StatusControls {
  Label Label15;  // status line
  Label Text10;   // internet banner
  Label IonoLabel;
  Label FileNotice;  // which file can't be read or written, and why; a click closes it
  Label LinkNotice;  // why the modem's port can't be opened; a click closes it
  Frame Frame12;     // distance alarm
  Label Label25;
  Frame Frame14;  // emergency
};

// USER QTH SETUP.
struct QthSetupControls {
  Frame Frame2;
  TextBox TextQthNorth;  // km, or a whole position
  TextBox TextQthEast;   // km, or a whole position
  Label QthNote;         // why what was typed is no position
  Label QthRests;        // that nothing is received, once the operator has begun
  Button QthOk;          // takes what was typed, else the map centre, as own position
  Button Command22;      // CANCEL
};

struct MainWindowControls {
  WindowControls Window;
  MapControls Map;
  ReadoutControls Readouts;
  ScaleControls Scales;
  PaletteControls Palette;
  Moni1Controls Moni1;
  MoniAllControls MoniAll;
  RecordPanelControls Record;
  TrackControls Tracks;
  PlaceControls Places;
  PicturePanelControls Picture;
  IonoControls Iono;
  SunControls Sun;
  ProgressControls Progress;
  TransmitControls Transmit;
  TxSetupControls TxSetup;
  ObjectSetupControls ObjectSetup;
  TerminalControls Terminal;
  RawListControls Raw;
  StatusControls Status;
  QthSetupControls Qth;
};

}  // namespace zepril
