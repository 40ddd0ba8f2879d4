// What START takes from the fields, and files that can't be written.
#include "station/start/field_store.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using FieldStoreTest = StartPanelWorld;

TEST_F(FieldStoreTest, TheInterfaceDecidesWhichFieldsAreTaken) {
  const auto panel = MakePanel();
  EXPECT_TRUE(panel->Controls.Option2.Value);
  EXPECT_FALSE(panel->Controls.Text3.Visible);
  panel->Controls.Option9.Click();
  EXPECT_TRUE(panel->Controls.Text3.Visible);
  EXPECT_FALSE(panel->Controls.Option2.Value);
  panel->Controls.Text8.Text = "QX7KB";
  panel->Controls.Text3.Text = " radio.local ";
  panel->Controls.Text4.Text = "";
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("MODEM=3"));
  EXPECT_TRUE(Has("HOSTC=radio.local"));
  EXPECT_TRUE(Has("HOSTP=8000"));
}

TEST_F(FieldStoreTest, MapsPathGivesTheMapSystem) {
  const auto panel = MakePanel();
  panel->Controls.Text8.Text = "QX7KB";
  panel->Controls.Text1.Text = "c:\\zepril\\u08\\";
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("UMAPS=C:\\ZEPRIL\\U08"));
  EXPECT_TRUE(Has("MSYS=U08"));
}

TEST_F(FieldStoreTest, AFileThatCantBeWrittenIsSaidAndNothingIsLost) {
  const auto panel = MakePanel();
  files.MakeFolder("C:\\Z\\ZEPRIL.INI.new~");
  panel->Controls.Text8.Text = "QX7KB";
  dialogs.Expect("ZEP RIL  START", "CAN'T WRITE  C:\\Z\\ZEPRIL.INI");
  panel->Controls.Command1.Click();
  EXPECT_EQ(panel->Controls.Command1.Caption, "START");
  EXPECT_EQ(panel->Controls.Text8.Text, "QX7KB");
}

TEST_F(FieldStoreTest, AnEmptyFieldLeavesTheHeldPort) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=6\r\nSBAUD=57600\r\n");
  Type(*panel, "  ");
  panel->Controls.Text4.Text = "";
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("SCOMP=6"));
  EXPECT_TRUE(Has("SBAUD=57600"));
  EXPECT_EQ(Ports(), "(none)");
}

TEST_F(FieldStoreTest, AnOddPortOfTheFileStaysUntouched) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=3.5\r\n");
  EXPECT_EQ(panel->Controls.Text3.Text, "3.5");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("SCOMP=3.5"));
  EXPECT_EQ(Ports(), "(none)");
}

TEST_F(FieldStoreTest, APortFileThatCantBeWrittenIsSaidAndNothingIsStored) {
  const auto panel = PanelOf("MODEM=1\r\nCOM=4\r\n");
  files.MakeFolder("C:\\Z\\PORTS.TXT.new~");
  Type(*panel, "ttyS0");
  dialogs.Expect("ZEP RIL  START", "CAN'T WRITE  C:\\Z\\PORTS.TXT");
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
  EXPECT_FALSE(panel->Starting());
  EXPECT_TRUE(panel->Controls.Text3.Enabled);
  EXPECT_TRUE(Has("TEMP=C:\\T"));
  EXPECT_FALSE(Has("COM=4") && Has("LANG=11"));
  EXPECT_TRUE(modem.Notes.empty());
  // The same choice once more, when it can be.
  std::filesystem::remove(files.NativePath("C:\\Z\\PORTS.TXT.new~"));
  panel->Controls.Command1.Click();
  EXPECT_EQ(Ports(), "COM4=/dev/ttyS0\r\n");
  EXPECT_EQ(starts, 1);
}

}  // namespace
}  // namespace zepril
