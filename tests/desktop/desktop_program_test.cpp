// The whole program as an operator runs it: settings, START, the engine on a port of this computer,
// the end.
#include "desktop/desktop_program.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "sample_maps/sample_maps.h"
#include "tests/desktop/desktop_support.h"
#include "tests/desktop/loopback_engine.h"
#include "tests/doubles/temp_folder.h"
#include "tests/map/bmp_maker.h"

namespace zepril {
namespace {

class DesktopProgramTest : public ::testing::Test {
 protected:
  DesktopProgramTest() {
    qputenv("ZEPRIL_DRIVE_C", folder.Path().c_str());
    files.MakeFolder("C:\\ZEPRIL\\U33\\M0050");
    files.Write("C:\\ZEPRIL\\U33\\M0050\\58000350.BMP", FourBitTile(9));
  }
  ~DesktopProgramTest() override { qunsetenv("ZEPRIL_DRIVE_C"); }

  void WriteSettings(const std::string& more) {
    files.Write("C:\\ZEPRIL\\ZEPRIL.INI",
                "USER=QX7KB\r\nMSYS=U33\r\nUMAPS=C:\\ZEPRIL\\U33\r\nTEMP=C:\\ZEPRIL\\TEMP\r\n"
                "CALL=QX1AB-9\r\nLOGS=1\r\nIONA=0\r\nUTN=5817.860\r\nUTE=391.394\r\nUUN=5817.86\r\n"
                "UUE=391.394\r\n" +
                    more);
  }
  std::string Ini() { return files.ReadAll("C:\\ZEPRIL\\ZEPRIL.INI", 1 << 20).value_or("?"); }
  bool Has(const std::string& line) { return Ini().find(line + "\r\n") != std::string::npos; }

  void Begin() {
    program = std::make_unique<DesktopProgram>(
        ProgramPlaces{"C:\\ZEPRIL", std::string(ZEPRIL_SOURCE_DIR) + "/data"});
    program->Ended = [this] { ++ended; };
    EXPECT_TRUE(program->LoadFonts());
    program->ShowStartWindow();
  }
  StartWindow& Start() { return *program->Starting(); }
  QPushButton* StartButton() { return Find<QPushButton>(Start(), "Command1"); }
  // Presses the button of the next message box, and keeps its text.
  void AnswerNextBox(QMessageBox::StandardButton button = QMessageBox::NoButton) {
    box_answer_.setInterval(5);
    QObject::connect(&box_answer_, &QTimer::timeout, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      box_answer_.stop();
      box_title = box->windowTitle().toStdString();
      box_text = box->text().replace(QChar(0xA0), QChar(' ')).toStdString();
      (button == QMessageBox::NoButton ? box->defaultButton() : box->button(button))->click();
    });
    box_answer_.start();
  }
  void StartOn(LoopbackEngine& engine) {
    WriteSettings("MODEM=3\r\nHOSTC=127.0.0.1\r\nHOSTP=" + WholeNumber(engine.Port()) + "\r\n");
    Begin();
    QTest::mouseClick(StartButton(), Qt::LeftButton);
  }
  void Tick() { program->Loop().RunStep(program->Station()->Timer1().Elapsed); }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  std::unique_ptr<DesktopProgram> program;
  int ended = 0;
  std::string box_title;
  std::string box_text;

 private:
  QTimer box_answer_;
};

TEST_F(DesktopProgramTest, TheFieldsShowTheSettings) {
  WriteSettings("MODEM=3\r\nHOSTC=radio.local\r\nHOSTP=8123\r\n");
  Begin();
  EXPECT_EQ(Find<QLineEdit>(Start(), "Text8")->text(), QStringLiteral("QX7KB"));
  EXPECT_EQ(Find<QComboBox>(Start(), "Text3")->currentText(), QStringLiteral("radio.local"));
  EXPECT_EQ(Find<QLineEdit>(Start(), "Text4")->text(), QStringLiteral("8123"));
  EXPECT_EQ(Find<QLineEdit>(Start(), "Text5")->text(), QStringLiteral("QX1AB-9"));
  EXPECT_EQ(Find<QLineEdit>(Start(), "Text1")->text(), QStringLiteral("C:\\ZEPRIL\\U33"));
  EXPECT_TRUE(Find<QPushButton>(Start(), "Option9")->isChecked());
  EXPECT_FALSE(Find<QPushButton>(Start(), "Option2")->isChecked());
  QTest::mouseClick(Find<QPushButton>(Start(), "Option10"), Qt::LeftButton);
  EXPECT_FALSE(Find<QComboBox>(Start(), "Text3")->isVisible());
  EXPECT_TRUE(Find<QPushButton>(Start(), "Option10")->isChecked());
  EXPECT_FALSE(Find<QPushButton>(Start(), "Option9")->isChecked());
}

// The screen of these tests is 800 pixels wide, the main window's first size 1280.
TEST_F(DesktopProgramTest, NoWindowOpensBeyondTheScreen) {
  WriteSettings("MODEM=4\r\n");
  Begin();
  const QRect screen = Start().screen()->availableGeometry();
  ASSERT_LT(screen.width(), 1280);
  EXPECT_TRUE(screen.contains(Start().geometry()));
  EXPECT_TRUE(Start().rect().contains(
      QRect(StartButton()->mapTo(&Start(), QPoint()), StartButton()->size())));
  QTest::mouseClick(StartButton(), Qt::LeftButton);
  ASSERT_NE(program->Window(), nullptr);
  EXPECT_TRUE(screen.contains(program->Window()->geometry()));
}

TEST_F(DesktopProgramTest, TheWindowsStandWhereTheyWere) {
  WriteSettings("MODEM=4\r\n");
  Begin();
  Start().setGeometry(20, 50, 700, 500);
  QTest::mouseClick(StartButton(), Qt::LeftButton);
  ASSERT_NE(program->Window(), nullptr);
  program->Window()->setGeometry(30, 60, 680, 490);
  Pump();
  program->Window()->close();
  Pump();
  Begin();
  EXPECT_EQ(Start().geometry(), QRect(20, 50, 700, 500));
  QTest::mouseClick(StartButton(), Qt::LeftButton);
  ASSERT_NE(program->Window(), nullptr);
  EXPECT_EQ(program->Window()->geometry(), QRect(30, 60, 680, 490));
}

TEST_F(DesktopProgramTest, EnterInAnyFieldPressesStartOnce) {
  for (const char* field : {"Text8", "Text5", "Text1", "Option10", "Command1"}) {
    WriteSettings("MODEM=4\r\n");
    Begin();
    auto* widget = Find<>(Start(), field);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_NE(program->Window(), nullptr) << field;
    EXPECT_FALSE(Start().isVisible()) << field;
    EXPECT_TRUE(program->Window()->isVisible()) << field;
    EXPECT_EQ(ended, 0) << field;
    program.reset();
  }
}

TEST_F(DesktopProgramTest, AMissingCallIsSaidAndMarkedAndTheWindowStays) {
  Begin();
  AnswerNextBox();
  QTest::mouseClick(StartButton(), Qt::LeftButton);
  EXPECT_EQ(box_text, "SET USER CALL !");
  EXPECT_EQ(program->Station(), nullptr);
  EXPECT_TRUE(Start().isVisible());
  EXPECT_FALSE(Find<QLabel>(Start(), "Fault")->text().isEmpty());
  EXPECT_EQ(Start().focusWidget(), Find<>(Start(), "Text8"));
  QTest::keyClicks(Find<>(Start(), "Text8"), QStringLiteral("q"));
  EXPECT_TRUE(Find<QLabel>(Start(), "Fault")->text().isEmpty());
}

TEST_F(DesktopProgramTest, StartWaitsForTheSampleMapsAndShowsHowFarTheyAre) {
  files.Remove("C:\\ZEPRIL\\U33\\M0050\\58000350.BMP");
  std::error_code ignored;
  std::filesystem::remove_all(files.NativePath("C:\\ZEPRIL\\U33\\M0050"), ignored);
  WriteSettings("MODEM=4\r\n");
  Begin();
  EXPECT_FALSE(StartButton()->isEnabled());
  auto* progress = Find<QProgressBar>(Start(), "MapProgress");
  EXPECT_TRUE(progress->isVisible());
  // Neither the button nor Enter starts the program meanwhile.
  QTest::mouseClick(StartButton(), Qt::LeftButton);
  QTest::keyClick(Find<>(Start(), "Text8"), Qt::Key_Return);
  EXPECT_EQ(program->Station(), nullptr);
  EXPECT_TRUE(PumpUntil([&] { return progress->value() > 0 && progress->maximum() > 1; }));
  // The program can be left in the middle of it.
  Start().close();
  EXPECT_EQ(ended, 1);
}

TEST_F(DesktopProgramTest, SampleMapsThatWereEndedEarlyAreGoneOnWith) {
  std::error_code ignored;
  std::filesystem::remove_all(files.NativePath("C:\\ZEPRIL\\U33\\M0050"), ignored);
  WriteSettings("MODEM=4\r\n");
  Begin();
  auto* progress = Find<QProgressBar>(Start(), "MapProgress");
  EXPECT_TRUE(PumpUntil([&] { return progress->value() > 1 && progress->maximum() > 1; }));
  Start().close();
  program.reset();
  // No folder has its name yet, so the next start knows that they are not whole.
  EXPECT_TRUE(files.List("C:\\ZEPRIL\\U33", "M*.*").empty());
  const auto begun = files.List("C:\\ZEPRIL\\U33", "NEW~*");
  ASSERT_FALSE(begun.empty());
  Begin();
  EXPECT_FALSE(StartButton()->isEnabled());
  Start().close();
}

// A folder that is named already does not keep the rest from being drawn.
TEST_F(DesktopProgramTest, SampleMapsAreGoneOnWithBesideFoldersThatAreNamed) {
  files.MakeFolder("C:\\ZEPRIL\\U33\\NEW~M0200");
  WriteSettings("MODEM=4\r\n");
  Begin();
  EXPECT_FALSE(StartButton()->isEnabled());
  Start().close();
}

TEST(SampleMaps, TheFoldersGetTheirNamesWhenAllAreWhole) {
  const TempFolder folder;
  NativeFiles files(folder.Path());
  const std::string source = std::string(ZEPRIL_SOURCE_DIR) + "/data/maps";
  const auto names = [&folder] {
    std::set<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
      found.insert(entry.path().filename().string());
    return found;
  };
  const SampleMapsResult first =
      DrawSampleMaps(files, source, "C:", [](int done, int) { return done < 3; });
  EXPECT_FALSE(first.Complete);
  EXPECT_EQ(names(), std::set<std::string>{"NEW~M1000"});
  const SampleMapsResult second = DrawSampleMaps(files, source, "C:", {});
  EXPECT_TRUE(second.Complete);
  EXPECT_EQ(second.Kept, 3);
  EXPECT_EQ(names(), (std::set<std::string>{"M0200", "M1000", "M1000RELIEF", "M5000"}));
  // Ended between two of the names.
  std::filesystem::rename(folder.Sub("M5000"), folder.Sub("NEW~M5000"));
  EXPECT_TRUE(DrawSampleMaps(files, source, "C:", {}).Complete);
  EXPECT_EQ(names().count("M5000"), 1u);
}

// ---- One program a folder -------------------------------------------------------------------

TEST_F(DesktopProgramTest, ASecondStartInTheFolderChangesNothingAndEnds) {
  WriteSettings("MODEM=4\r\n");
  Begin();
  files.Write("C:\\ZEPRIL\\U33\\LOG\\_LOG_.TXT", "of the first\r\n");
  const std::string ini = Ini();
  DesktopProgram second({"C:\\ZEPRIL", std::string(ZEPRIL_SOURCE_DIR) + "/data"});
  int second_ended = 0;
  second.Ended = [&second_ended] { ++second_ended; };
  AnswerNextBox(QMessageBox::No);
  EXPECT_FALSE(second.ShowStartWindow());
  EXPECT_EQ(second_ended, 1);
  EXPECT_EQ(second.Starting(), nullptr);
  EXPECT_NE(box_text.find("ZEPRIL RUNS IN  C:\\ZEPRIL  ALREADY."), std::string::npos) << box_text;
  EXPECT_EQ(files.ReadAll("C:\\ZEPRIL\\U33\\LOG\\_LOG_.TXT", 100), "of the first\r\n");
  EXPECT_EQ(Ini(), ini);
  // The first one ends: the folder is free.
  Start().close();
  program.reset();
  EXPECT_TRUE(second.ShowStartWindow());
}

TEST_F(DesktopProgramTest, ASecondStartBringsTheFirstToTheFront) {
  WriteSettings("MODEM=4\r\n");
  Begin();
  Start().setWindowState(Qt::WindowMinimized);
  DesktopProgram second({"C:\\ZEPRIL", std::string(ZEPRIL_SOURCE_DIR) + "/data"});
  AnswerNextBox(QMessageBox::Yes);
  EXPECT_FALSE(second.ShowStartWindow());
  EXPECT_TRUE(PumpUntil([&] { return !Start().isMinimized(); }));
}

// ---- Settings that can't be read ------------------------------------------------------------

TEST_F(DesktopProgramTest, SettingsThatCannotBeReadEndTheRunUnlessTheOperatorGoesOn) {
  files.MakeFolder("C:\\ZEPRIL\\ZEPRIL.INI");  // no file: it can't be read
  program = std::make_unique<DesktopProgram>(
      ProgramPlaces{"C:\\ZEPRIL", std::string(ZEPRIL_SOURCE_DIR) + "/data"});
  program->Ended = [this] { ++ended; };
  AnswerNextBox(QMessageBox::No);
  EXPECT_FALSE(program->ShowStartWindow());
  EXPECT_EQ(ended, 1);
  EXPECT_NE(box_text.find("CAN'T READ  C:\\ZEPRIL\\ZEPRIL.INI"), std::string::npos) << box_text;
  EXPECT_NE(box_text.find("it is no ordinary file"), std::string::npos) << box_text;
}

TEST_F(DesktopProgramTest, ARunOnDefaultsWritesNoSettings) {
  files.MakeFolder("C:\\ZEPRIL\\ZEPRIL.INI");
  AnswerNextBox(QMessageBox::Yes);
  Begin();
  auto* call = Find<QLineEdit>(Start(), "Text8");
  EXPECT_EQ(call->text(), QString());
  QTest::keyClicks(call, QStringLiteral("qx2cd"));
  program->Loop().RunStep([] {});
  EXPECT_TRUE(files.List("C:\\ZEPRIL\\ZEPRIL.INI", "*.*").empty());
  QTest::keyClick(&Start(), Qt::Key_Escape);
  EXPECT_EQ(ended, 1);
  EXPECT_TRUE(files.Stamp("C:\\ZEPRIL\\ZEPRIL.INI")->IsFolder);
  // Nor does the place of the window become a file, which could be written here.
  EXPECT_FALSE(files.Exists("C:\\ZEPRIL\\WINDOW.TXT"));
}

TEST_F(DesktopProgramTest, StartComesAliveWhenTheMapsAreDrawn) {
  Begin();
  Start().ShowMapProgress(3, 10);
  auto* progress = Find<QProgressBar>(Start(), "MapProgress");
  EXPECT_TRUE(progress->isVisible());
  EXPECT_EQ(progress->value(), 3);
  Start().ShowMapProgress(10, 10);
  EXPECT_FALSE(progress->isVisible());
  EXPECT_TRUE(StartButton()->isEnabled());
}

TEST_F(DesktopProgramTest, EscEndsTheProgramFromTheStartWindow) {
  Begin();
  QTest::keyClick(&Start(), Qt::Key_Escape);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(program->Station(), nullptr);
}

TEST_F(DesktopProgramTest, WhatTheEngineHearsComesOnTheMap) {
  LoopbackEngine engine;
  StartOn(engine);
  ASSERT_NE(program->Window(), nullptr);
  EXPECT_EQ(engine.Registrations, 1);
  ASSERT_TRUE(PumpUntil([&] { return engine.Monitorings == 1; }));
  engine.Hear("N0CALL", "=5230.00N/01324.00E>Test", "WIDE1-1*");
  ASSERT_TRUE(PumpUntil([&] { return !program->Station()->State().Radio.AgwRxBuffer.empty(); }));
  Tick();
  EXPECT_EQ(program->Station()->State().Stores.MoniAllRecords.Count(), 1);
}

TEST_F(DesktopProgramTest, ClosingKeepsTheViewAndTakesLeaveOfTheEngine) {
  LoopbackEngine engine;
  StartOn(engine);
  ASSERT_NE(program->Window(), nullptr);
  files.Append("C:\\ZEPRIL\\ZEPRIL.INI", "FOO=1\r\n");
  program->Station()->State().Map.CentreNorthKm = 5900.0;
  program->Station()->State().Map.CentreEastKm = 450.0;
  program->Window()->close();
  EXPECT_EQ(ended, 1);
  EXPECT_FALSE(program->Window()->isVisible());
  EXPECT_TRUE(Has("UTN=5900"));
  EXPECT_TRUE(Has("UTE=450"));
  EXPECT_TRUE(Has("FOO=1"));
  EXPECT_TRUE(files.List("C:\\ZEPRIL\\TEMP", "*.DIR").empty());
  EXPECT_TRUE(PumpUntil([&] { return engine.Departures == 1 && !engine.HasClient(); }));
}

TEST_F(DesktopProgramTest, ACloseInsideAStepWaitsForItsEnd) {
  WriteSettings("MODEM=4\r\n");
  Begin();
  QTest::mouseClick(StartButton(), Qt::LeftButton);
  ASSERT_NE(program->Window(), nullptr);
  program->Loop().RunStep([&] {
    program->Window()->close();
    EXPECT_EQ(ended, 0);
    EXPECT_TRUE(program->Window()->isVisible());
    program->Loop().RunStep([] {});  // an inner step ends, the outer does not
    EXPECT_EQ(ended, 0);
    program->Loop().HandOver();
    EXPECT_EQ(ended, 0);
  });
  EXPECT_EQ(ended, 1);
}

TEST_F(DesktopProgramTest, ASessionThatEndsWhileTheStationStartsIsEndedAfterTheStart) {
  LoopbackEngine engine;
  WriteSettings("MODEM=3\r\nHOSTC=127.0.0.1\r\nHOSTP=" + WholeNumber(engine.Port()) + "\r\n");
  Begin();
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (program->Station() == nullptr) return;  // it is not being started yet
    watch.stop();
    EXPECT_EQ(program->Window(), nullptr);
    program->CloseAsOperator();
  });
  watch.start(0);
  QTest::mouseClick(StartButton(), Qt::LeftButton);
  EXPECT_TRUE(PumpUntil([this] { return ended == 1; }));
  EXPECT_EQ(program->Window(), nullptr);
  EXPECT_FALSE(Start().isVisible());
  EXPECT_TRUE(files.List("C:\\ZEPRIL\\TEMP", "*.DIR").empty());
  EXPECT_TRUE(Has("UTN=5817.86"));
}

// As while a modem is set up: whoever asks, the window or the system.
TEST_F(DesktopProgramTest, ACloseBeforeTheStationStartsKeepsItFromStarting) {
  const std::function<void()> asks[] = {[this] { program->CloseAsOperator(); },
                                        [this] { Start().close(); },
                                        [this] { QTest::keyClick(&Start(), Qt::Key_Escape); }};
  for (const auto& ask : asks) {
    WriteSettings("MODEM=4\r\n");
    ended = 0;
    Begin();
    QTimer::singleShot(0, &Start(), [&] {
      ASSERT_EQ(program->Station(), nullptr);
      ask();
      EXPECT_EQ(ended, 0);
      EXPECT_TRUE(Start().isVisible());
    });
    QTest::mouseClick(StartButton(), Qt::LeftButton);
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(program->Station(), nullptr);
    EXPECT_FALSE(Start().isVisible());
    EXPECT_TRUE(Has("LANG=11"));  // what START has stored stays
    program.reset();
  }
}

TEST_F(DesktopProgramTest, ASessionThatEndsClosesTheBoxThatWaits) {
  LoopbackEngine engine;
  StartOn(engine);
  ASSERT_NE(program->Window(), nullptr);
  // The question before a map window is saved.
  QTimer asked;
  QObject::connect(&asked, &QTimer::timeout, [&] {
    if (QApplication::activeModalWidget() == nullptr) return;
    asked.stop();
    program->CloseAsOperator();
  });
  asked.start(5);
  QTest::mouseClick(Find<>(*program->Window(), "Command59"), Qt::LeftButton);
  EXPECT_TRUE(PumpUntil([this] { return ended == 1; }));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_FALSE(files.Exists("C:\\ZEPRIL\\MY_MAPS\\MAP_0001.BMP"));
}

TEST_F(DesktopProgramTest, AnEngineThatIsNotThereIsSaidAndEndsTheProgram) {
  int port = 0;
  {
    const LoopbackEngine gone;
    port = gone.Port();
  }
  WriteSettings("MODEM=3\r\nHOSTC=127.0.0.1\r\nHOSTP=" + WholeNumber(port) + "\r\n");
  Begin();
  AnswerNextBox();
  QTest::mouseClick(StartButton(), Qt::LeftButton);
  EXPECT_TRUE(PumpUntil([this] { return ended == 1; }));
  EXPECT_EQ(box_title, "ZEP RIL  TCP/IP AGWPE");
  EXPECT_EQ(box_text, "TCP/IP AGWPE HOST NOT FOUND !");
  EXPECT_EQ(program->Window(), nullptr);
  EXPECT_FALSE(Start().isVisible());
}

TEST_F(DesktopProgramTest, AnEngineThatRefusesIsSaidAndEndsTheProgram) {
  LoopbackEngine engine;
  engine.Refuses = true;
  AnswerNextBox();
  StartOn(engine);
  EXPECT_TRUE(PumpUntil([this] { return ended == 1; }));
  EXPECT_EQ(box_text, "TCP/IP AGWPE NOT FOUND !");
  EXPECT_EQ(program->Window(), nullptr);
}

TEST_F(DesktopProgramTest, TheTimersStandStillWhileABoxIsOpen) {
  QtLoop loop;
  QtDialogs dialogs(loop);
  Timer timer{1};
  int fired = 0;
  timer.Elapsed = [&] { ++fired; };
  loop.Drive({&timer, true});
  timer.Arm(1);
  int fired_in_box = -1;
  int witnessed = 0;
  QTimer witness;  // one that is not the program's goes on
  witness.start(1);
  QObject::connect(&witness, &QTimer::timeout, [&] {
    if (++witnessed != 5) return;
    fired_in_box = fired;
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
    EXPECT_EQ(box->icon(), QMessageBox::Warning);  // what follows a Yes can't be taken back
    box->close();                                  // as the harmless button
  });
  loop.RunStep([&] {
    EXPECT_EQ(dialogs.Ask("DELETE", "DELETE  IT ?", DialogButtons::YesNo, DialogAnswer::No),
              DialogAnswer::No);
  });
  EXPECT_EQ(fired_in_box, 0);
  EXPECT_TRUE(PumpUntil([&] { return fired > 0; }));
}

}  // namespace
}  // namespace zepril
