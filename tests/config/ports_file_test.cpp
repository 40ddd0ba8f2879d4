// Lines of `PORTS.TXT`: read, chosen, replaced, left alone.
#include "config/ports_file.h"

#include <gtest/gtest.h>

#include <string>

#include "core/text_fields.h"
#include "tests/doubles/memory_files.h"

namespace zepril {
namespace {

constexpr const char* kFolder = "C:\\Z";
constexpr const char* kPath = "C:\\Z\\PORTS.TXT";

class PortsFileTest : public ::testing::Test {
 protected:
  std::string Device(int number) { return DeviceOfPort(files, kFolder, number); }
  bool Choose(int number, const std::string& device) {
    return ChooseDeviceOfPort(files, kFolder, number, device);
  }
  std::string& Text() { return files.Contents[kPath]; }

  MemoryFiles files;
};

TEST_F(PortsFileTest, WithoutAFileNoNumberHasADevice) {
  EXPECT_EQ(Device(1), "");
  EXPECT_EQ(Device(-1), "");
}

TEST_F(PortsFileTest, ALineNamesTheDeviceOfItsNumber) {
  Text() = "COM3=/dev/ttyUSB0\r\n com12 = ttyACM1 \nCom4=/dev/a=b c";
  EXPECT_EQ(Device(3), "/dev/ttyUSB0");
  EXPECT_EQ(Device(12), "ttyACM1");
  EXPECT_EQ(Device(4), "/dev/a=b c");
  EXPECT_EQ(Device(1), "");
}

TEST_F(PortsFileTest, TheLaterOfTwoLinesHolds) {
  Text() = "COM3=first\r\nCOM03=second\r\n";
  EXPECT_EQ(Device(3), "second");
}

TEST_F(PortsFileTest, WhatIsNoPortsLineIsPassedOver) {
  Text() = "; COM3=/dev/comment\r\nCOM=none\r\nCOM0=zero\r\nCOM3X=letter\r\nCOM-3=sign\r\nCOM3\r\n";
  Text() += "LPT3=printer\r\nCOM3=\r\nCOM3=   \r\n=x\r\nCO\r\n\r\nCOM3=bell\x07\r\n";
  Text() += "COM99999999999999999999=far\r\nCOM257=above\r\n";
  Text() += "COM3=" + std::string(kLongestPortLine, 'x') + "\r\n";
  for (int number : {0, 1, 3, 257})
    EXPECT_EQ(Device(number), "") << number;
}

TEST_F(PortsFileTest, AnEndlessFileIsNotReadToItsEnd) {
  for (int lines = 1; lines < kMostPortLines; ++lines)
    Text() += "COM3=early\n";
  Text() += "COM3=last\nCOM3=late\n";
  EXPECT_EQ(Device(3), "last");
}

TEST_F(PortsFileTest, AChosenDeviceMakesTheFile) {
  EXPECT_TRUE(Choose(3, " /dev/ttyUSB0 "));
  EXPECT_EQ(Text(), "COM3=/dev/ttyUSB0\r\n");
  EXPECT_EQ(Device(3), "/dev/ttyUSB0");
}

TEST_F(PortsFileTest, OtherLinesStayAsTheyAre) {
  Text() = "; mine\nCOM2=/dev/ttyS0\n\n com3 = old \n# more";
  EXPECT_TRUE(Choose(3, "/dev/new"));
  EXPECT_EQ(Text(), "; mine\nCOM2=/dev/ttyS0\n\nCOM3=/dev/new\n# more");
  EXPECT_TRUE(Choose(5, "/dev/five"));
  EXPECT_EQ(Text(), "; mine\nCOM2=/dev/ttyS0\n\nCOM3=/dev/new\n# more\r\nCOM5=/dev/five\r\n");
}

TEST_F(PortsFileTest, OfTwoLinesTheOneThatHoldsIsChanged) {
  Text() = "COM3=a\r\nCOM3=b\r\n";
  EXPECT_TRUE(Choose(3, "c"));
  EXPECT_EQ(Text(), "COM3=a\r\nCOM3=c\r\n");
}

TEST_F(PortsFileTest, WhatIsChosenIsReadAgainFromAnyFile) {
  for (int lines = 0; lines < 2 * kMostPortLines; ++lines)
    Text() += "COM" + WholeNumber(5 + lines % 7) + "=x\r\n";
  const std::string before = Text();
  EXPECT_TRUE(Choose(3, "/dev/new"));
  EXPECT_EQ(Device(3), "/dev/new");
  EXPECT_TRUE(Text().ends_with(before));
}

TEST_F(PortsFileTest, WhatWouldNotBeReadAgainIsNotWritten) {
  Text() = "COM3=old\r\n";
  EXPECT_FALSE(Choose(0, "/dev/x"));
  EXPECT_FALSE(Choose(257, "/dev/x"));
  EXPECT_FALSE(Choose(3, "  "));
  EXPECT_FALSE(Choose(3, "/dev/x\r\nCOM4=y"));
  EXPECT_FALSE(Choose(3, std::string(kLongestPortLine, 'x')));
  EXPECT_EQ(Text(), "COM3=old\r\n");
}

TEST_F(PortsFileTest, AFileThatCantBeReadIsLeftAlone) {
  Text() = std::string(5U << 20, 'x');
  EXPECT_FALSE(Choose(3, "/dev/x"));
  EXPECT_EQ(Text().size(), 5U << 20);
}

}  // namespace
}  // namespace zepril
