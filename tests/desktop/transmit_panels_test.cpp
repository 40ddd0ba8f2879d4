// TX SETUP, OBJECT SETUP, the terminal, the TRANSMIT group and the notices, on the window.
#include "desktop/transmit_panels.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>

#include <map>

#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

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
               &Controls().Transmit.Check15}) {
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

// ---- Every control is on the window ---------------------------------------------------------

std::map<std::string, Button*> ButtonsOf(TxSetupControls& t) {
  std::map<std::string, Button*> all = {
      {"PathClear", &t.PathClear},   {"TxIntervalDown", &t.TxIntervalDown},
      {"SymbolUp", &t.SymbolUp},     {"TxIntervalUp", &t.TxIntervalUp},
      {"SymbolDown", &t.SymbolDown}, {"CrossDown", &t.CrossDown},
      {"CrossUp", &t.CrossUp},       {"TxOk", &t.TxOk},
      {"TxAbort", &t.TxAbort}};
  const auto add = [&all](const std::string& name, auto& buttons) {
    for (std::size_t at = 0; at < buttons.size(); ++at)
      all[name + static_cast<char>('1' + at)] = &buttons[at];
  };
  add("PathMemory", t.PathMemory);
  add("PathQuick", t.PathQuick);
  add("InfoMemory", t.InfoMemory);
  return all;
}

TEST_F(TransmitPanelsTest, EveryButtonOfTxSetupReachesItsEvent) {
  OpenTxSetup();
  for (const auto& [name, control] : ButtonsOf(Tx())) {
    int left = 0;
    int right = 0;
    control->Click = [&left] { ++left; };
    control->RightClick = [&right] { ++right; };
    QWidget* widget = Find<>(*window, name.c_str());
    EXPECT_TRUE(widget->isVisible()) << name;
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_EQ(left, 1) << name;
    AskForMenu(widget, false);
    EXPECT_EQ(right, 1) << name;
    EXPECT_TRUE((widget->focusPolicy() & Qt::TabFocus) != 0) << name;
    control->Click = nullptr;
    control->RightClick = nullptr;
  }
}

TEST_F(TransmitPanelsTest, EveryButtonOfObjectSetupReachesItsEvent) {
  OpenObjectSetup();
  for (const auto& [name, control] :
       std::map<std::string, Button*>{{"ObjectSymbolDown", &Object().ObjectSymbolDown},
                                      {"ObjectSymbolUp", &Object().ObjectSymbolUp},
                                      {"ObjectOk", &Object().ObjectOk},
                                      {"Command31", &Object().Command31},
                                      {"Command32", &Object().Command32}}) {
    int clicks = 0;
    control->Click = [&clicks] { ++clicks; };
    QWidget* widget = Find<>(*window, name.c_str());
    EXPECT_TRUE(widget->isVisible()) << name;
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_EQ(clicks, 1) << name;
    control->Click = nullptr;
  }
}

TEST_F(TransmitPanelsTest, EveryFieldTakesTypingAndTellsOfIt) {
  OpenTxSetup();
  OpenObjectSetup();
  std::map<std::string, TextBox*> fields = {{"TxSsid", &Tx().TxSsid},
                                            {"TxDestinationField", &Tx().TxDestinationField},
                                            {"TxPathField", &Tx().TxPathField},
                                            {"TxInterval", &Tx().TxInterval},
                                            {"TxOverlayField", &Tx().TxOverlayField},
                                            {"TxLevel", &Tx().TxLevel},
                                            {"ObjectNameField", &Object().ObjectNameField},
                                            {"ObjectTextField", &Object().ObjectTextField},
                                            {"ObjectOverlayField", &Object().ObjectOverlayField}};
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line)
    fields[std::string("InfoField") + static_cast<char>('1' + line)] = &Tx().InfoField[line];
  for (const auto& [name, control] : fields) {
    int changes = 0;
    int focused = 0;
    control->Change = [&changes] { ++changes; };
    control->GotFocus = [&focused] { ++focused; };
    control->Text.clear();
    auto* field = Find<QLineEdit>(*window, name.c_str());
    loop.RunStep([] {});
    field->setFocus();
    EXPECT_EQ(focused, 1) << name;
    QTest::keyClicks(field, QStringLiteral("a7"));
    EXPECT_EQ(control->Text, "a7") << name;
    EXPECT_EQ(changes, 2) << name;
    control->Change = nullptr;
    control->GotFocus = nullptr;
  }
}

TEST_F(TransmitPanelsTest, EverySwitchAndSpeedReachesItsEvent) {
  OpenTxSetup();
  std::map<std::string, CheckBox*> switches = {
      {"TxTimestampBox", &Tx().TxTimestampBox},  {"DigiBox", &Tx().DigiBox},
      {"Check15", &Controls().Transmit.Check15}, {"Check2", &Controls().Transmit.Check2},
      {"Check6", &Controls().Transmit.Check6},   {"Check18", &Controls().Transmit.Check18}};
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line)
    switches[std::string("fr4ta") + static_cast<char>('1' + line)] = &Tx().fr4ta[line];
  for (const auto& [name, control] : switches) {
    int clicks = 0;
    control->Click = [&clicks] { ++clicks; };
    const int before = control->Value;
    Click(name.c_str());
    EXPECT_EQ(clicks, 1) << name;
    EXPECT_EQ(control->Value, 1 - before) << name;
    control->Click = nullptr;
  }
  for (std::size_t at = 0; at < Tx().Speeds.size(); ++at) {
    int clicks = 0;
    Tx().Speeds[at].Click = [&clicks] { ++clicks; };
    Click((std::string("Option") + static_cast<char>('3' + at)).c_str());
    EXPECT_EQ(clicks, 1) << at;
    Tx().Speeds[at].Click = nullptr;
  }
}

TEST_F(TransmitPanelsTest, MinutesAndSymbolsStepOnWhileTheirButtonIsHeld) {
  for (const char* name : {"TxIntervalDown", "TxIntervalUp", "SymbolDown", "SymbolUp",
                           "ObjectSymbolDown", "ObjectSymbolUp"}) {
    EXPECT_EQ(Find<QPushButton>(*window, name)->autoRepeatInterval(), 200) << name;
    EXPECT_TRUE(Find<QPushButton>(*window, name)->autoRepeat()) << name;
  }
  EXPECT_FALSE(Find<QPushButton>(*window, "CrossUp")->autoRepeat());
}

TEST_F(TransmitPanelsTest, WhatTheLinkDoesNotOfferIsNotShown) {
  OpenTxSetup();
  loop.RunStep([this] {
    Tx().CrossField.Visible = false;
    Tx().TxLevelLabel.Visible = false;
    Tx().TxLevel.Visible = false;
    Tx().Speeds[0].Visible = false;
  });
  for (const char* name : {"CrossField", "TxLevelLabel", "TxLevel", "Option3"})
    EXPECT_FALSE(Find<>(*window, name)->isVisible()) << name;
  // Nor what stands before it.
  for (const QLabel* label : window->findChildren<QLabel*>()) {
    if (label->text().contains(QStringLiteral("2. MODE"))) {
      EXPECT_FALSE(label->isVisible());
    }
  }
}

TEST_F(TransmitPanelsTest, NamesOfSymbolsAndTheSecondModeAreRead) {
  OpenTxSetup();
  OpenObjectSetup();
  loop.RunStep([this] {
    Tx().SymbolName.Caption = "Car";
    Object().ObjectSymbolName.Caption = "Repeater";
    Tx().CrossField.Caption = "R300";
    Tx().TxLevelLabel.Caption = " SCS TNC: AFSK TX LEVEL ( 30 mV - 3000 mV )";
  });
  const auto text = [this](const char* name) { return Find<QLabel>(*window, name)->text(); };
  EXPECT_EQ(text("SymbolName"), QStringLiteral("Car"));
  EXPECT_EQ(text("ObjectSymbolName"), QStringLiteral("Repeater"));
  EXPECT_EQ(text("CrossField"), QStringLiteral("R300"));
  EXPECT_EQ(text("TxLevelLabel"), QStringLiteral(" SCS TNC: AFSK TX LEVEL ( 30 mV - 3000 mV )"));
}

TEST_F(TransmitPanelsTest, TheTextOfAMemoryIsItsToolTip) {
  OpenTxSetup();
  loop.RunStep([this] {
    Tx().InfoMemory[2].ToolTip = "145.500 MHZ";
    Tx().PathMemory[0].ToolTip = "WIDE1-1,WIDE2-1";
  });
  EXPECT_EQ(Find<>(*window, "InfoMemory3")->toolTip(), QStringLiteral("145.500 MHZ"));
  EXPECT_EQ(Find<>(*window, "PathMemory1")->toolTip(), QStringLiteral("WIDE1-1,WIDE2-1"));
}

TEST_F(TransmitPanelsTest, TabGoesThroughTheFieldsFromTopToBottom) {
  OpenTxSetup();
  Find<>(*window, "TxSsid")->setFocus();
  std::vector<std::string> seen;
  for (int step = 0; step < 60; ++step) {
    seen.push_back(window->focusWidget()->objectName().toStdString());
    if (seen.back() == "TxAbort") break;
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  }
  ASSERT_EQ(seen.back(), "TxAbort");
  const auto place = [&seen](const char* name) {
    return std::find(seen.begin(), seen.end(), name) - seen.begin();
  };
  const char* order[] = {"TxSsid",      "TxDestinationField",
                         "SymbolDown",  "TxOverlayField",
                         "TxPathField", "PathMemory1",
                         "PathQuick1",  "PathClear",
                         "InfoField1",  "fr4ta1",
                         "InfoMemory1", "InfoField2",
                         "InfoField6",  "TxIntervalDown",
                         "TxInterval",  "TxTimestampBox",
                         "Option3",     "DigiBox",
                         "Check15",     "Check2",
                         "CrossDown",   "TxLevel",
                         "TxOk",        "TxAbort"};
  for (std::size_t at = 1; at < std::size(order); ++at)
    EXPECT_LT(place(order[at - 1]), place(order[at])) << order[at];
}

TEST_F(TransmitPanelsTest, TxSetupIsOpenedFilledInAndTaken) {
  AskForMenu(Find<>(*window, "Check6"), false);
  EXPECT_TRUE(Find<>(*window, "Frame4")->isVisible());
  const auto type = [this](const char* name, const QString& text) {
    auto* field = Find<QLineEdit>(*window, name);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
  };
  type("TxInterval", QStringLiteral("61"));
  EXPECT_EQ(Find<QLineEdit>(*window, "TxInterval")->text(), QStringLiteral("MANUAL"));
  Click("TxIntervalDown");
  EXPECT_EQ(Find<QLineEdit>(*window, "TxInterval")->text(), QStringLiteral("60"));
  type("TxSsid", QStringLiteral("9"));
  Click("PathClear");
  Click("PathQuick1");
  Click("PathQuick2");
  // A memory takes the line that was in last, and gives it back to another.
  type("InfoField2", QStringLiteral("145.500 MHz"));
  AskForMenu(Find<>(*window, "InfoMemory4"), true);
  EXPECT_EQ(Find<>(*window, "InfoMemory4")->toolTip(), QStringLiteral("145.500 MHz"));
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "InfoField2"));
  Click("TxOk");
  EXPECT_FALSE(Find<>(*window, "Frame4")->isVisible());
  EXPECT_EQ(State().Transmission.TxIntervalMinutes, 60);
  EXPECT_EQ(State().Transmission.TxPath, "WIDE1-1,WIDE2-1");
  EXPECT_EQ(State().Transmission.InfoLine[1], "145.500 MHz");
  EXPECT_EQ(State().Transmission.InfoLineMemory[3], "145.500 MHz");
  EXPECT_EQ(State().Identity.MyCallFull, "QX7KB-9");
  EXPECT_EQ(Find<QPushButton>(*window, "Check6")->text(), QStringLiteral("TX 60"));
}

TEST_F(TransmitPanelsTest, SeveralPastedLinesAreOneLineOfAField) {
  OpenTxSetup();
  auto* field = Find<QLineEdit>(*window, "InfoField1");
  field->clear();
  field->setFocus();
  QGuiApplication::clipboard()->setText(QStringLiteral("one\r\nUSER=QX9ZZ\tx\x1B"));
  field->paste();
  EXPECT_EQ(Tx().InfoField[0].Text, "one USER=QX9ZZ x ");
  loop.RunStep([] {});
  EXPECT_EQ(field->text(), QStringLiteral("one USER=QX9ZZ x "));
}

TEST_F(TransmitPanelsTest, TheObjectIsPutWhereTheMapIsMovedTo) {
  AskForMenu(Find<>(*window, "Check18"), true);
  auto* name = Find<QLineEdit>(*window, "ObjectNameField");
  EXPECT_EQ(window->focusWidget(), name);
  QTest::keyClicks(name, QStringLiteral("hut"));
  QTest::mouseClick(Map(), Qt::LeftButton, {}, QPoint(Map()->width() - 60, 80));
  EXPECT_TRUE(Find<>(*window, "Frame11")->isVisible());
  Click("ObjectOk");
  EXPECT_FALSE(Find<>(*window, "Frame11")->isVisible());
  EXPECT_EQ(State().Transmission.ObjectName, "HUT      ");
  EXPECT_EQ(State().Transmission.ObjectEast, State().Map.CentreEastKm);
  EXPECT_GT(State().Transmission.ObjectEast, 391.394 + 5.0);
}

// ---- Symbols --------------------------------------------------------------------------------

TEST_F(TransmitPanelsTest, TheSymbolIsShownTwiceAsLargeAndUnfiltered) {
  OpenTxSetup();
  tx_symbol_surface.Clear(0xFFFFFF);
  tx_symbol_surface.Points(std::vector<PixelPoint>{{5, 7}}, 0x0000FF);
  loop.RunStep([this] { ++Tx().SymbolPicture.Revision; });
  EXPECT_EQ(Find<>(*window, "SymbolPicture")->size(), QSize(44, 44));
  const QImage picture = Find<>(*window, "SymbolPicture")->grab().toImage();
  const double ratio = picture.devicePixelRatio();
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const bool dot = x >= 10 * ratio && x < 12 * ratio && y >= 14 * ratio && y < 16 * ratio;
      ASSERT_EQ(picture.pixelColor(x, y), dot ? QColor(255, 0, 0) : QColor(Qt::white));
    }
  }
  OpenObjectSetup();
  object_symbol_surface.Clear(0x00FF00);
  loop.RunStep([this] { ++Object().ObjectSymbolPicture.Revision; });
  EXPECT_EQ(ColourOf("ObjectSymbolPicture", {10, 10}), QColor(0, 255, 0));
}

// ---- Places ---------------------------------------------------------------------------------

TEST_F(TransmitPanelsTest, TheSetUpPanelsKeepTheirPlaceAtEverySize) {
  OpenTxSetup();
  OpenObjectSetup();
  for (const QSize size : {QSize(640, 480), QSize(700, 520), QSize(720, 900), QSize(790, 480),
                           QSize(800, 600), QSize(1280, 800), QSize(3840, 2160)}) {
    Resize(size.width(), size.height());
    const auto where = [&](const char* what) {
      return std::string(what) + " at " + std::to_string(size.width());
    };
    const QRect under = PlaceOf(Map()->parentWidget());
    for (const char* name : {"Frame4", "Frame11"}) {
      EXPECT_TRUE(under.contains(PlaceOf(Find<>(*window, name)))) << where(name);
      // Nothing is cut off at the side, and the buttons below are always there.
      auto* area = Find<>(*window, name)->findChild<QScrollArea*>();
      EXPECT_GE(area->viewport()->width(), area->widget()->minimumSizeHint().width())
          << where(name);
    }
    for (const char* name : {"TxOk", "TxAbort", "ObjectOk", "Command31", "Command32"}) {
      EXPECT_TRUE(under.contains(PlaceOf(Find<>(*window, name)))) << where(name);
    }
    // The map's centre can be seen while the object gets its place.
    const QPoint centre = PlaceOf(Map()).center();
    const QRect around(centre - QPoint(12, 12), QSize(25, 25));
    EXPECT_FALSE(around.intersects(PlaceOf(Find<>(*window, "Frame11")))) << where("Frame11");
  }
}

TEST_F(TransmitPanelsTest, AColumnThatComesBackStaysUnderTheSetUpPanel) {
  Resize(640, 480);
  OpenTxSetup();
  Resize(800, 600);
  // Over both columns here.
  const QRect panel = PlaceOf(Find<>(*window, "Frame4"));
  EXPECT_TRUE(panel.intersects(PlaceOf(Find<>(*window, "Combo9"))));
  for (const QPoint& corner :
       {panel.topLeft() + QPoint(2, 20), panel.topRight() + QPoint(-2, 20)}) {
    QWidget* seen = window->childAt(corner);
    EXPECT_TRUE(seen == Find<>(*window, "Frame4") || Find<>(*window, "Frame4")->isAncestorOf(seen));
  }
}

TEST_F(TransmitPanelsTest, OnALargeWindowAllOfTxSetupIsSeen) {
  Resize(1280, 800);
  OpenTxSetup();
  Pump();
  auto* area = Find<>(*window, "Frame4")->findChild<QScrollArea*>();
  EXPECT_GE(area->viewport()->height(), area->widget()->sizeHint().height());
  // Over the left part of the map.
  EXPECT_TRUE(PlaceOf(Map()).contains(PlaceOf(Find<>(*window, "Frame4"))));
}

TEST_F(TransmitPanelsTest, WhereItIsTooLowTxSetupScrollsToTheFieldThatIsTabbedTo) {
  Resize(640, 480);
  OpenTxSetup();
  Pump();
  auto* area = Find<>(*window, "Frame4")->findChild<QScrollArea*>();
  const auto seen = [&](const char* name) {
    const QWidget* widget = Find<>(*window, name);
    const QRect place(widget->mapTo(area->viewport(), QPoint()), widget->size());
    return area->viewport()->rect().contains(place);
  };
  EXPECT_FALSE(seen("TxLevel"));
  Find<>(*window, "CrossUp")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "TxLevel"));
  EXPECT_TRUE(seen("TxLevel"));
}

TEST_F(TransmitPanelsTest, APressOnAPanelIsNoneOnTheMap) {
  int presses = 0;
  Controls().Map.Picture1.MouseDown = [&](MousePress) { ++presses; };
  loop.RunStep([this] {
    Controls().Record.Frame1.Visible = true;
    Controls().Qth.Frame2.Visible = true;
    Controls().Status.LinkNotice.Visible = true;
    Controls().Terminal.Label49.Visible = true;
  });
  OpenTxSetup();
  OpenObjectSetup();
  for (const char* name :
       {"Frame1", "Label20", "Frame2", "LinkNotice", "Label49", "Frame4", "Frame11"}) {
    QTest::mousePress(Find<>(*window, name), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(presses, 0) << name;
    QTest::mouseRelease(Find<>(*window, name), Qt::LeftButton, {}, QPoint(2, 2));
  }
}

// ---- Keys -----------------------------------------------------------------------------------

TEST_F(TransmitPanelsTest, EscClosesWhatLiesOnTopByItsHarmlessButton) {
  std::string pressed;
  Tx().TxAbort.Click = [&] {
    pressed += "abort ";
    Tx().Frame4.Visible = false;
  };
  Object().Command32.Click = [&] {
    pressed += "cancel ";
    Object().Frame11.Visible = false;
  };
  OpenTxSetup();
  OpenObjectSetup();
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(pressed, "cancel ");
  EXPECT_TRUE(Find<>(*window, "Frame4")->isVisible());
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(pressed, "cancel abort ");
  EXPECT_FALSE(Find<>(*window, "Frame4")->isVisible());
}

TEST_F(TransmitPanelsTest, EscPressesNoButtonThatIsDisabled) {
  int aborted = 0;
  Tx().TxAbort.Click = [&] { ++aborted; };
  OpenTxSetup();
  // As while the modem is programmed.
  loop.RunStep([this] { Tx().TxAbort.Enabled = false; });
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(aborted, 0);
  EXPECT_TRUE(Find<>(*window, "Frame4")->isVisible());
}

TEST_F(TransmitPanelsTest, EscInAFieldLeavesItFirst) {
  int aborted = 0;
  Tx().TxAbort.Click = [&] { ++aborted; };
  OpenTxSetup();
  Find<>(*window, "TxPathField")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(aborted, 0);
  EXPECT_EQ(window->focusWidget(), Map());
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(aborted, 1);
}

TEST_F(TransmitPanelsTest, AnOpenedPanelIsReadyToBeTypedInAndAClosedOneLeavesTheKeysToTheMap) {
  Map()->setFocus();
  OpenTxSetup();
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "TxSsid"));
  Find<>(*window, "InfoField2")->setFocus();
  loop.RunStep([this] { Tx().Frame4.Visible = false; });
  EXPECT_EQ(window->focusWidget(), Map());
}

TEST_F(TransmitPanelsTest, ControlTOpensTxSetupAsTheRightClickDoes) {
  int opened = 0;
  Controls().Transmit.Check6.RightClick = [&] { ++opened; };
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(opened, 1);
  EXPECT_FALSE(State().Map.TracksOn);  // the T without Ctrl
  AskForMenu(Find<>(*window, "Check6"), true);
  EXPECT_EQ(opened, 2);
  Find<>(*window, "Text15")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(opened, 2);
}

// ---- The TRANSMIT group ---------------------------------------------------------------------

TEST_F(TransmitPanelsTest, ASwitchThatIsOnTheAirIsRedAndTheObjectsAmber) {
  loop.RunStep([this] {
    Controls().Transmit.Check6.Value = 1;
    Controls().Transmit.Check18.Value = 1;
    Controls().Transmit.Check18.BackColour.reset();
  });
  EXPECT_EQ(ColourOf("Check6", {8, 13}), QColor(0xE0, 0x48, 0x48));
  EXPECT_EQ(ColourOf("Check18", {8, 13}), QColor(0xC0, 0xC0, 0x00));
  loop.RunStep([this] {
    Controls().Transmit.Check6.Value = 0;
    Controls().Transmit.Check18.Value = 0;
    Controls().Transmit.Check18.BackColour = 0x007070;
  });
  EXPECT_EQ(ColourOf("Check6", {8, 13}), NightLook().Panel);
  EXPECT_EQ(ColourOf("Check18", {8, 13}), NightLook().Window);  // dimmed
}

TEST_F(TransmitPanelsTest, TheBarFillsTowardsTheNextReport) {
  loop.RunStep([this] {
    Controls().Transmit.NextBeacon.Visible = true;
    Controls().Transmit.NextBeacon.FilledPx = 60;
    Controls().Transmit.NextBeacon.FullWidthPx = 120;
    Controls().Transmit.NextBeacon.Colour = 0x0000FF;
  });
  const QWidget* bar = Find<>(*window, "NextBeacon");
  EXPECT_TRUE(bar->isVisible());
  EXPECT_EQ(ColourOf("NextBeacon", {2, 2}), QColor(255, 0, 0));
  EXPECT_NE(ColourOf("NextBeacon", {bar->width() - 4, 2}), QColor(255, 0, 0));
}

// ---- The terminal ---------------------------------------------------------------------------

TEST_F(TransmitPanelsTest, TheTerminalOpensInTheDrawerWithTheFocusInItsField) {
  auto* drawer = Find<QTabWidget>(*window, "Drawer");
  loop.RunStep([this] { Controls().Raw.RawList.Visible = true; });
  OpenTerminal();
  EXPECT_TRUE(Find<>(*window, "Frame19")->isVisible());
  EXPECT_EQ(drawer->tabText(drawer->currentIndex()), QStringLiteral("TERMINAL"));
  EXPECT_TRUE(Find<>(*window, "Text19")->hasFocus());
  loop.RunStep([this] {
    Terminal().Text20.Text = "cmd:\r";
    Terminal().Text19.Text = "K";
  });
  EXPECT_EQ(Find<QPlainTextEdit>(*window, "Text20")->toPlainText(), QStringLiteral("cmd:\n"));
  EXPECT_EQ(Find<QPlainTextEdit>(*window, "Text19")->toPlainText(), QStringLiteral("K"));
  loop.RunStep([this] { Terminal().Frame19.Visible = false; });
  EXPECT_FALSE(Find<>(*window, "Frame19")->isVisible());
  EXPECT_TRUE(Find<>(*window, "RawList")->isVisible());
  loop.RunStep([this] { Controls().Raw.RawList.Visible = false; });
  EXPECT_FALSE(drawer->isVisible());
}

TEST_F(TransmitPanelsTest, TheDrawerHasItsHeightAgainAfterTheTerminal) {
  loop.RunStep([this] { Controls().Raw.RawList.Visible = true; });
  Pump();
  const int height = Find<>(*window, "Drawer")->height();
  OpenTerminal();
  EXPECT_GT(Find<>(*window, "Drawer")->height(), height);
  loop.RunStep([this] { Terminal().Frame19.Visible = false; });
  Pump();
  EXPECT_EQ(Find<>(*window, "Drawer")->height(), height);
}

TEST_F(TransmitPanelsTest, AllKeysInTheTerminalGoToTheModem) {
  int pressed = 0;
  Terminal().Command66.Click = [&] { ++pressed; };
  Controls().Transmit.Check6.RightClick = [&] { ++pressed; };
  OpenTerminal();
  auto* field = Find<>(*window, "Text19");
  for (Qt::Key key : {Qt::Key_G, Qt::Key_Plus, Qt::Key_L}) {
    QTest::keyClick(field, key);
  }
  QTest::keyClick(field, Qt::Key_Escape);
  QTest::keyClick(field, Qt::Key_T, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_R, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_PageUp);
  QTest::keyClick(field, Qt::Key_Home);
  EXPECT_EQ(typed, "g+l\x1B\x14\x12");
  EXPECT_EQ(pressed, 0);
  EXPECT_FALSE(State().Map.GridOn);
  EXPECT_EQ(State().Map.ZoomFactor, 1.0);
  EXPECT_EQ(State().Map.MapTileKm, 50.0);
  EXPECT_FALSE(Controls().Raw.RawList.Visible);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(TransmitPanelsTest, ARedrawLeavesTheTerminalTheFocus) {
  OpenTerminal();
  loop.RunStep([this] { Controls().Map.Picture1.FocusWanted = true; });
  EXPECT_TRUE(Find<>(*window, "Text19")->hasFocus());
}

TEST_F(TransmitPanelsTest, TheTerminalIsLeftByAltCAndByEscFromElsewhere) {
  int closes = 0;
  Terminal().Command66.Click = [&] { ++closes; };
  OpenTerminal();
  QTest::keyClick(Find<>(*window, "Text19"), Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(closes, 1);
  EXPECT_EQ(typed, "");
  Click("Command66");
  EXPECT_EQ(closes, 2);
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(closes, 3);
  loop.RunStep([this] { Terminal().Frame19.Visible = false; });
  QTest::keyClick(Map(), Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(closes, 3);
}

TEST_F(TransmitPanelsTest, AClickIntoWhatTheModemPrintsIsTold) {
  int clicks = 0;
  Terminal().Text20.Click = [&] {
    ++clicks;
    Terminal().Text19.FocusWanted = true;
  };
  OpenTerminal();
  QTest::mouseClick(Find<QPlainTextEdit>(*window, "Text20")->viewport(), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(Find<>(*window, "Text19")->hasFocus());
}

// What is printed there can be clicked into, and no key leads there.
TEST_F(TransmitPanelsTest, TheTabKeysPassWhatTheModemPrints) {
  OpenTerminal();
  QTest::keyClick(Find<>(*window, "Text19"), Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_FALSE(Find<>(*window, "Text19")->hasFocus());
  EXPECT_FALSE(Find<>(*window, "Text20")->hasFocus());
}

TEST_F(TransmitPanelsTest, TheTerminalFitsAtEverySize) {
  OpenTerminal();
  for (const QSize size : {QSize(640, 480), QSize(1280, 800), QSize(3840, 2160)}) {
    Resize(size.width(), size.height());
    for (const char* name : {"Label47", "Text20", "Text19", "Command66"}) {
      const QWidget* widget = Find<>(*window, name);
      EXPECT_TRUE(widget->isVisible());
      EXPECT_TRUE(PlaceOf(Find<>(*window, "Frame19")).contains(PlaceOf(widget)))
          << name << " at " << size.width();
    }
    const auto* rule = Find<QLabel>(*window, "Label47");
    const QRect needed = rule->fontMetrics().boundingRect(QRect(0, 0, rule->width(), 1000),
                                                          Qt::TextWordWrap, rule->text());
    EXPECT_LE(needed.height(), rule->height()) << size.width();
    EXPECT_GE(Find<>(*window, "Text20")->height(), 32) << size.width();
    EXPECT_GE(Map()->height(), 120) << size.width();
  }
}

TEST_F(TransmitPanelsTest, TheTerminalIsAskedForByItsButton) {
  int asked = 0;
  Terminal().Command65.Click = [&] { ++asked; };
  loop.RunStep([this] { Terminal().Command65.Enabled = true; });
  Click("Command65");
  EXPECT_EQ(asked, 1);
}

// ---- Notices --------------------------------------------------------------------------------

TEST_F(TransmitPanelsTest, TheNoticeOfTheLinkStandsOverTheMapUntilItIsClicked) {
  Controls().Status.LinkNotice.Click = [this] { Controls().Status.LinkNotice.Visible = false; };
  loop.RunStep([this] {
    Controls().Status.LinkNotice.Visible = true;
    Controls().Status.LinkNotice.Caption =
        "The port can't be opened: permission denied. Add yourself to the group of the port:\n"
        "sudo usermod -aG dialout $USER";
  });
  auto* notice = Find<QLabel>(*window, "LinkNotice");
  for (const QSize size : {QSize(640, 480), QSize(1280, 800)}) {
    Resize(size.width(), size.height());
    EXPECT_TRUE(notice->isVisible());
    EXPECT_TRUE(Map()->rect().contains(notice->geometry())) << size.width();
    EXPECT_GE(notice->height(), notice->heightForWidth(notice->width())) << size.width();
  }
  // Its command can be copied.
  EXPECT_TRUE(notice->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
  QTest::mouseClick(notice, Qt::LeftButton);
  EXPECT_FALSE(notice->isVisible());
}

TEST_F(TransmitPanelsTest, TheNoticeOfTheTemporaryModeStandsOverTheMap) {
  loop.RunStep([this] {
    Controls().Raw.RawList.Visible = true;
    Terminal().Label49.Visible = true;
    Terminal().Label49.Caption = "TEMPORARY MODE FSK 300 Bd RELEASE BUTTON TO RETURN TO RPR 300 Bd";
  });
  for (const QSize size : {QSize(640, 480), QSize(1280, 800)}) {
    Resize(size.width(), size.height());
    const QWidget* notice = Find<>(*window, "Label49");
    EXPECT_TRUE(notice->isVisible());
    EXPECT_TRUE(Map()->rect().contains(notice->geometry())) << size.width();
  }
}

TEST_F(TransmitPanelsTest, TheLineOfARecordIsPressedAlsoByTheKeyboard) {
  int pressed = 0;
  Controls().Record.Label20.Click = [&] { ++pressed; };
  loop.RunStep([this] { Controls().Record.Frame1.Visible = true; });
  Click("Label20");
  EXPECT_EQ(pressed, 1);
  Find<>(*window, "Label20")->setFocus();
  QTest::keyClick(Find<>(*window, "Label20"), Qt::Key_Return);
  EXPECT_EQ(pressed, 2);
}

TEST_F(TransmitPanelsTest, TheHeldRightButtonOfTheRawListIsTold) {
  std::string told;
  Controls().Raw.RawList.RightDown = [&] { told += "down "; };
  Controls().Raw.RawList.RightUp = [&] { told += "up "; };
  loop.RunStep([this] { Controls().Raw.RawList.Visible = true; });
  auto* list = Find<QListView>(*window, "RawList");
  QTest::mousePress(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down ");
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down up ");
  // A page that goes while it is held.
  QTest::mousePress(list->viewport(), Qt::RightButton);
  loop.RunStep([this] { Controls().Raw.RawList.Visible = false; });
  EXPECT_EQ(told, "down up down up ");
}

}  // namespace
}  // namespace zepril
