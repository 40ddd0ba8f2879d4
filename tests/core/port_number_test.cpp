// Numbers, names and numbers beyond all ports in a port field.
#include "core/port_number.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(PortNumberOfText, TakesANumberWithOrWithoutTheLettersBeforeIt) {
  EXPECT_EQ(PortNumberOfText("3"), 3);
  EXPECT_EQ(PortNumberOfText(" 12 "), 12);
  EXPECT_EQ(PortNumberOfText("COM3"), 3);
  EXPECT_EQ(PortNumberOfText(" com 3 "), 3);
  EXPECT_EQ(PortNumberOfText("0"), 0);
  EXPECT_EQ(PortNumberOfText("007"), 7);
}

TEST(PortNumberOfText, ANumberBeyondAllPortsIsNone) {
  EXPECT_EQ(PortNumberOfText("32767"), 32767);
  EXPECT_EQ(PortNumberOfText("32768"), 0);
  EXPECT_EQ(PortNumberOfText("COM99999999999999999999"), 0);
}

TEST(PortNumberOfText, OtherTextNamesADevice) {
  for (const char* text :
       {"", " ", "COM", "ttyUSB0", "/dev/ttyUSB0", "3x", "-3", "3.5", "COMPUTER", "COM3x", "1 2"})
    EXPECT_EQ(PortNumberOfText(text), std::nullopt) << text;
}

}  // namespace
}  // namespace zepril
