// What stands in TX SETUP and OBJECT SETUP: each button, field and switch, and the symbols.
#include "desktop/transmit_panels.h"

#include <map>

#include "tests/desktop/transmit_panels_support.h"

namespace zepril {
namespace {

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
    control->Click = nullptr;
    control->Click = [&left] { ++left; };
    control->RightClick = nullptr;
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
    control->Click = nullptr;
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
    control->Change = nullptr;
    control->Change = [&changes] { ++changes; };
    control->GotFocus = nullptr;
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
      {"TxTimestampBox", &Tx().TxTimestampBox}, {"DigiBox", &Tx().DigiBox},
      {"Check15", &Controls().Gate.Check15},    {"Check2", &Controls().Transmit.Check2},
      {"Check6", &Controls().Transmit.Check6},  {"Check18", &Controls().Transmit.Check18}};
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line)
    switches[std::string("fr4ta") + static_cast<char>('1' + line)] = &Tx().fr4ta[line];
  for (const auto& [name, control] : switches) {
    int clicks = 0;
    control->Click = nullptr;
    control->Click = [&clicks] { ++clicks; };
    const int before = control->Value;
    Click(name.c_str());
    EXPECT_EQ(clicks, 1) << name;
    EXPECT_EQ(control->Value, 1 - before) << name;
    control->Click = nullptr;
  }
  for (std::size_t at = 0; at < Tx().Speeds.size(); ++at) {
    int clicks = 0;
    Tx().Speeds[at].Click = nullptr;
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

TEST_F(TransmitPanelsTest, WhatOkDoesNotDoStandsBesideIt) {
  OpenTxSetup();
  loop.RunStep([this] {
    Tx().CallNotice.Caption = "the call follows at the next START";
    Tx().CallNotice.Visible = true;
  });
  Pump();
  auto* notice = Find<QLabel>(*window, "CallNotice");
  EXPECT_EQ(notice->text(), QStringLiteral("the call follows at the next START"));
  EXPECT_GE(notice->width(), notice->sizeHint().width());
  const QRect ok = PlaceOf(Find<>(*window, "TxOk"));
  const QRect place = PlaceOf(notice);
  EXPECT_LE(place.right(), ok.left());
  EXPECT_LT(std::abs(place.center().y() - ok.center().y()), ok.height());
  loop.RunStep([this] { Tx().CallNotice.Visible = false; });
  EXPECT_FALSE(notice->isVisible());
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

}  // namespace
}  // namespace zepril
