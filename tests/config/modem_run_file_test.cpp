// Lines of `MODEM.RUN`: written, replaced, led back, passed over.
#include "config/modem_run_file.h"

#include <gtest/gtest.h>

#include <string>

#include "core/text_fields.h"
#include "tests/doubles/memory_files.h"

namespace zepril {
namespace {

constexpr const char* kFolder = "C:\\Z";
constexpr const char* kPath = "C:\\Z\\MODEM.RUN";
const ModemRun kFirst{1, 9600, "/dev/serial/by-id/usb-A"};
const ModemRun kSecond{6, 38400, "/dev/ttyUSB0 A100"};

class ModemRunFileTest : public ::testing::Test {
 protected:
  std::optional<int> SpeedOf(const ModemRun& run) { return SpeedOfModemRun(files, kFolder, run); }
  bool Note(const ModemRun& run) { return NoteModemRun(files, kFolder, run); }
  MemoryFiles files;
};

TEST_F(ModemRunFileTest, AModemInConverseIsKnownByInterfaceAndDevice) {
  EXPECT_FALSE(SpeedOf(kFirst).has_value());
  ASSERT_TRUE(Note(kFirst));
  EXPECT_EQ(files.Contents[kPath], "1 9600 /dev/serial/by-id/usb-A\r\n");
  EXPECT_EQ(SpeedOf(kFirst), 9600);
  EXPECT_FALSE(SpeedOf({6, 9600, kFirst.Device}).has_value());
  EXPECT_FALSE(SpeedOf({1, 9600, "/dev/serial/by-id/usb-B"}).has_value());
}

TEST_F(ModemRunFileTest, ANewSpeedReplacesTheOldOne) {
  Note(kFirst);
  Note({1, 1200, kFirst.Device});
  EXPECT_EQ(SpeedOf(kFirst), 1200);
  EXPECT_EQ(files.Contents[kPath], "1 1200 /dev/serial/by-id/usb-A\r\n");
}

TEST_F(ModemRunFileTest, TheFileGoesWithTheLastModemThatIsLedBack) {
  Note(kFirst);
  Note(kSecond);
  EndModemRun(files, kFolder, kFirst);
  EXPECT_FALSE(SpeedOf(kFirst).has_value());
  EXPECT_EQ(SpeedOf(kSecond), 38400);
  EndModemRun(files, kFolder, kFirst);
  EXPECT_TRUE(files.Exists(kPath));
  EndModemRun(files, kFolder, kSecond);
  EXPECT_FALSE(files.Exists(kPath));
}

TEST_F(ModemRunFileTest, WhatIsNoModemsLineIsPassedOver) {
  files.Contents[kPath] =
      "1 9600\r\nx 9600 /dev/a\r\n1 0 /dev/a\r\n1 -5 /dev/a\r\n7 9600 /dev/a\r\n1  /dev/a\r\n"
      "1 9600 \r\n\r\n1 9600 /dev/\x07"
      "a\r\n99999999999 9600 /dev/a\r\n1 9600 /dev/b\n";
  for (int mode = 0; mode < 8; ++mode)
    EXPECT_FALSE(SpeedOf({mode, 0, "/dev/a"}).has_value()) << mode;
  EXPECT_EQ(SpeedOf({1, 0, "/dev/b"}), 9600);
}

TEST_F(ModemRunFileTest, ItDoesNotGrowWithoutBound) {
  for (std::size_t modem = 0; modem < 2 * kMostModemRuns; ++modem)
    Note({1, 9600, "/dev/tty" + WholeNumber(static_cast<int>(modem))});
  EXPECT_FALSE(SpeedOf({1, 0, "/dev/tty0"}).has_value());
  EXPECT_EQ(SpeedOf({1, 0, "/dev/tty39"}), 9600);
  files.Contents[kPath] = std::string(100000, 'x');
  EXPECT_FALSE(SpeedOf({1, 0, "/dev/tty39"}).has_value());
  EXPECT_TRUE(Note(kFirst));
  EXPECT_EQ(SpeedOf(kFirst), 9600);
}

TEST_F(ModemRunFileTest, WhatWouldNotBeReadAgainIsNotWritten) {
  EXPECT_FALSE(Note({1, 9600, ""}));
  EXPECT_FALSE(Note({1, 9600, "a\nb"}));
  EXPECT_FALSE(Note({1, 0, "/dev/a"}));
  EXPECT_FALSE(files.Exists(kPath));
}

}  // namespace
}  // namespace zepril
