// Models behind a link: programs that come, leave, do not read.
#include "tool/pty_modem.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "tests/doubles/temp_folder.h"
#include "tests/tool/modem_model_support.h"
#include "tool/pk232_model.h"

namespace zepril {
namespace {

// A program at the other end of the line.
class Program {
 public:
  explicit Program(const std::string& path)
      : descriptor_(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK)) {}
  ~Program() { ::close(descriptor_); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  bool IsOpen() const { return descriptor_ >= 0; }
  void Say(std::string_view bytes) {
    EXPECT_EQ(::write(descriptor_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  std::string Heard() {
    std::string all;
    std::array<char, 4096> block{};
    for (;;) {
      const ssize_t length = ::read(descriptor_, block.data(), block.size());
      if (length <= 0) return all;
      all.append(block.data(), static_cast<std::size_t>(length));
    }
  }

 private:
  int descriptor_;
};

class PtyModemTest : public ::testing::Test {
 protected:
  void SetUp() override {
    modem = PtyModem::Open(folder.Sub("modem"), std::make_unique<Pk232Model>());
    ASSERT_NE(modem, nullptr);
  }
  void Serve(int times = 4) {
    for (int i = 0; i < times; ++i)
      modem->Serve(1);
  }
  TempFolder folder;
  std::unique_ptr<PtyModem> modem;
};

TEST_F(PtyModemTest, AProgramTalksToTheModelThroughTheLink) {
  Program program(modem->Link());
  ASSERT_TRUE(program.IsOpen());
  program.Say("MYCALL QX7KB\r");
  Serve();
  EXPECT_EQ(modem->BytesTaken(), 13U);
  EXPECT_EQ(program.Heard(), "MYCALL QX7KB\r\nMYCALL   was PK232\r\nMYCALL   now QX7KB\r\ncmd:");
}

TEST_F(PtyModemTest, EveryByteGoesThroughAsItIs) {
  Program program(modem->Link());
  program.Say("ECHO OFF\r8B ON\rK\r");
  std::string sent;
  modem->Model().Sent = [&](const ModemSending& sending) { sent = sending.Text; };
  std::string text;
  for (int code = 4; code < 256; ++code) {
    if (code != '\r' && code != 8 && code != 24) text += static_cast<char>(code);
  }
  program.Say(text + '\r');
  Serve();
  EXPECT_EQ(sent, text);
}

TEST_F(PtyModemTest, WhatIsWrittenBeforeTheProgramLeavesStillCounts) {
  {
    Program program(modem->Link());
    program.Say("MYCALL QX7KB\r");
  }
  Serve();
  EXPECT_EQ(modem->Model().Setting("MYCALL"), "QX7KB");
  Program next(modem->Link());
  next.Say("MYCALL QX8AB\r");
  Serve();
  EXPECT_EQ(modem->Model().Setting("MYCALL"), "QX8AB");
}

TEST_F(PtyModemTest, WhatIsHeardWhileNobodyIsThereIsLost) {
  modem->Hear(Packet("N0CALL>APRS:!lost"));
  Program program(modem->Link());
  Serve();
  modem->Hear(Packet("N0CALL>APRS:!heard"));
  Serve();
  EXPECT_EQ(program.Heard(), "N0CALL*>APRS <UI>:\r\n!heard\r\n");
}

TEST_F(PtyModemTest, AProgramThatDoesNotReadHoldsNobodyUp) {
  Program program(modem->Link());
  const AirPacket packet = Packet("N0CALL>APRS:" + std::string(1000, 'x'));
  for (int packets = 0; packets < 1000; ++packets)
    modem->Hear(packet);
  Serve();
  std::size_t got = 0;
  for (int turns = 0; turns < 200; ++turns) {
    got += program.Heard().size();
    Serve(1);
  }
  EXPECT_GT(got, 0U);
  EXPECT_LE(got, 2 * PtyModem::kMostUnsent);
}

TEST_F(PtyModemTest, WhatAProgramDidNotReadDoesNotWaitForTheNextOne) {
  const AirPacket packet = Packet("N0CALL>APRS:" + std::string(1000, 'x'));
  {
    Program program(modem->Link());
    for (int packets = 0; packets < 100; ++packets)
      modem->Hear(packet);
  }
  Serve();
  Program next(modem->Link());
  std::size_t got = 0;
  for (int turns = 0; turns < 50; ++turns) {
    got += next.Heard().size();
    Serve(1);
  }
  // The system itself holds a little back.
  EXPECT_LT(got, PtyModem::kMostUnsent / 2);
}

TEST_F(PtyModemTest, TheLinkGoesWithTheModem) {
  const std::string link = modem->Link();
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  modem.reset();
  EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(link)));
}

TEST_F(PtyModemTest, NothingThatIsThereIsReplacedOrRemoved) {
  EXPECT_EQ(PtyModem::Open(modem->Link(), std::make_unique<Pk232Model>()), nullptr);
  EXPECT_TRUE(std::filesystem::is_symlink(modem->Link()));

  const std::string link = modem->Link();
  std::filesystem::remove(link);
  std::ofstream(link) << "somebody else's";
  modem.reset();
  EXPECT_TRUE(std::filesystem::is_regular_file(link));
}

TEST_F(PtyModemTest, TheLinkOfAKilledModemGivesWay) {
  const std::string link = folder.Sub("left");
  std::filesystem::create_symlink("/dev/pts/no-such-terminal", link);
  const auto next = PtyModem::Open(link, std::make_unique<Pk232Model>());
  ASSERT_NE(next, nullptr);
  EXPECT_TRUE(Program(link).IsOpen());
}

TEST_F(PtyModemTest, AHungUpModemTakesNothingMore) {
  Program program(modem->Link());
  modem->HangUp();
  modem->Hear(Packet("N0CALL>APRS:!tst"));
  Serve();
  EXPECT_EQ(program.Heard(), "");
  EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(modem->Link())));
}

TEST(ModemDevice, IsListenedToWhenItWasSetUpAndLeftInPeace) {
  const TempFolder folder;
  std::string lines;
  const auto device = OpenModemDevice(folder.Sub("modem"), std::make_unique<Pk232Model>(), 2.0,
                                      [&](const std::string& line) { lines += line; });
  ASSERT_NE(device, nullptr);
  EXPECT_EQ(device->ReadyLine(), "READY pk232 " + folder.Sub("modem") + "\n");
  Program program(folder.Sub("modem"));
  device->Serve(1);
  EXPECT_FALSE(device->IsListenedTo(100));
  program.Say("MYCALL QX7KB\rK\r=\x05\r");
  device->Serve(1);
  EXPECT_FALSE(device->IsListenedTo(200));
  EXPECT_FALSE(device->IsListenedTo(201.4));
  EXPECT_TRUE(device->IsListenedTo(201.5));
  EXPECT_EQ(lines,
            "COMMAND pk232 MYCALL QX7KB\nCOMMAND pk232 K\nSENT pk232 1200 QX7KB>CQ:=\\x05\n");
}

TEST(ModemDevice, IsNotThereWhenItsLinkCannotBeMade) {
  EXPECT_EQ(OpenModemDevice("/no/such/folder/modem", std::make_unique<Pk232Model>(), 1.0,
                            [](const std::string&) {}),
            nullptr);
}

}  // namespace
}  // namespace zepril
