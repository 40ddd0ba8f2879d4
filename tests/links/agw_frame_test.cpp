// Frames of a packet engine, to the byte.
#include "links/agw_frame.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "core/text_fields.h"

namespace zepril {
namespace {

std::string Bytes(std::initializer_list<int> codes) {
  std::string text;
  for (int code : codes)
    text += Chr(code);
  return text;
}

TEST(AgwFrame, RegistrationHasThirtySixBytes) {
  EXPECT_EQ(MakeAgwFrame(0, 'X', "QX7KB", "APRS", {}),
            Bytes({0,    0, 0, 0, 0x58, 0, 0,    0,    0x51, 0x58, 0x37, 0x4B,
                   0x42, 0, 0, 0, 0,    0, 0x41, 0x50, 0x52, 0x53, 0,    0,
                   0,    0, 0, 0, 0,    0, 0,    0,    0x5A, 0x45, 0x50, 0x52}));
}

TEST(AgwFrame, UnprotoCarriesItsDigipeaters) {
  const std::string frame =
      MakeAgwFrame(0, 'V', "QX7KB-9", "ZEPR", AgwUnprotoData("WIDE1-1,WIDE2-1", "Hi"));
  EXPECT_EQ(frame.size(), 59U);
  EXPECT_EQ(frame.substr(28, 4), Bytes({0x17, 0, 0, 0}));
  EXPECT_EQ(frame[36], 2);
  EXPECT_EQ(frame.substr(37, 10), std::string("WIDE1-1\0\0\0", 10));
  EXPECT_EQ(frame.substr(47, 10), std::string("WIDE2-1\0\0\0", 10));
  EXPECT_EQ(frame.substr(57), "Hi");
}

TEST(AgwFrame, AnEmptyPathHasNoDigipeaterField) {
  EXPECT_EQ(AgwUnprotoData("", "Hi"), std::string("\0Hi", 3));
}

TEST(AgwFrame, EmptyElementsOfAPathAreLeftOut) {
  EXPECT_EQ(AgwUnprotoData("A,B,", "Hi"), AgwUnprotoData("A,B", "Hi"));
  EXPECT_EQ(AgwUnprotoData(",,A, ,\x1B,B", "Hi"), AgwUnprotoData("A,B", "Hi"));
  EXPECT_EQ(AgwUnprotoData(",,", "Hi"), std::string("\0Hi", 3));
}

TEST(AgwFrame, ControlBytesOfACallAreBlanks) {
  EXPECT_EQ(MakeAgwFrame(0, 'V',
                         "QX\x1B"
                         "7",
                         "\x03ZEPR\r",
                         AgwUnprotoData("A\x07"
                                        "B",
                                        "Hi")),
            MakeAgwFrame(0, 'V', "QX 7", "ZEPR", AgwUnprotoData("A B", "Hi")));
}

TEST(AgwFrame, LengthIsWrittenLowByteFirstAndStaysInTwoBytes) {
  const std::string frame = MakeAgwFrame(1, 'V', "A", "B", std::string(70000, 'x'));
  EXPECT_EQ(frame.size(), 36U + 65535U);
  EXPECT_EQ(frame.substr(28, 4), Bytes({0xFF, 0xFF, 0, 0}));
  EXPECT_EQ(ReadAgwHeader(frame).DataLength, 65535U);
}

TEST(AgwFrame, PortFollowsTheRadioMode) {
  EXPECT_EQ(AgwPortOf("1200", 0), 1);
  EXPECT_EQ(AgwPortOf("300", 1), 0);
  EXPECT_EQ(AgwPortOf("300R", 1), 0);
  EXPECT_EQ(AgwPortOf("9600", 1), 1);
  EXPECT_EQ(AgwPortOf("9600", 0), 0);
}

TEST(AgwFrame, HeaderReadsBackWhatWasWritten) {
  const AgwFrameFields fields = ReadAgwHeader(MakeAgwFrame(1, 'V', " qx7kb-9 ", "zepr", "abc"));
  EXPECT_EQ(fields.Port, 1);
  EXPECT_EQ(fields.Kind, 'V');
  EXPECT_EQ(fields.From, "QX7KB-9");
  EXPECT_EQ(fields.To, "ZEPR");
  EXPECT_EQ(fields.DataLength, 3U);
  EXPECT_EQ(fields.User, "ZEPR");
}

}  // namespace
}  // namespace zepril
