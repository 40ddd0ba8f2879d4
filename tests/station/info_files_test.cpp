// Info lines that stand for files of other programs, whatever these leave there: the report goes
// out at its second, with what the file gives or without a comment.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "core/text_fields.h"
#include "tests/station/station_support.h"

namespace zepril {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSettings =
    "MODEM=5\r\nTXON=0\r\nTXSY=30\r\nTXI1={C:\\WX.TXT}\r\nTXI1A=1\r\nTXI2A=0\r\nTXI3A=0\r\n"
    "TXI4A=0\r\nTXI5A=0\r\nTXI6A=0\r\nUUN=5395.276\r\nUUE=-10.523\r\n";
const std::string kPosition = "=4830.15N/00805.20E>";
constexpr double kPauseBehindFrame = 0.8;

class InfoFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(station.Start());
    station.modem.Written.clear();
  }
  // The file's path as the other program knows it.
  std::string Path() const { return station.folder.Sub("WX.TXT"); }
  void WriteFile(const std::string& bytes) {
    ASSERT_TRUE(station.files.Write("C:\\WX.TXT", bytes));
  }
  // The next report. It takes the pause behind a frame and not a moment longer.
  std::string Report() {
    const double before = station.clock.MonotonicSeconds();
    station.Controls().Transmit.Check6.Value = 1;
    station.Controls().Transmit.Check6.Click();
    EXPECT_NEAR(station.clock.MonotonicSeconds() - before, kPauseBehindFrame, 1e-9);
    return std::exchange(station.modem.Written, {});
  }

  StationHarness station{kSettings};
};

TEST_F(InfoFiles, TheLongestLineIsTheCommentAndFollowsTheFile) {
  WriteFile("short\r\n   the longest line of all   \nmiddling one\r\n");
  EXPECT_EQ(Report(), kPosition + "the longest line of all\r");
  WriteFile("12.5 C");
  EXPECT_EQ(Report(), kPosition + "12.5 C\r");
  WriteFile("");
  EXPECT_EQ(Report(), kPosition + "\r");
  station.files.Remove("C:\\WX.TXT");
  EXPECT_EQ(Report(), kPosition + "\r");
}

TEST_F(InfoFiles, AHugeFileGivesAShortComment) {
  std::string huge;
  for (int line = 0; line < 200'000; ++line)
    huge += "line " + WholeNumber(line) + " of very many that nobody reads\r\n";
  ASSERT_GT(huge.size(), 4U << 20);
  WriteFile(huge);
  EXPECT_EQ(Report(), kPosition + "line 10000 of very many that nobody reads\r");
  // One line without end.
  WriteFile(std::string(9U << 20, 'x'));
  EXPECT_EQ(Report(), kPosition + std::string(63, 'x') + "\r");
}

TEST_F(InfoFiles, ABinaryFileSendsNoControlCharacter) {
  std::string all;
  for (int code = 0; code < 256; ++code)
    all += Chr(code);
  WriteFile(all + all + all);
  const std::string report = Report();
  ASSERT_TRUE(report.starts_with(kPosition));
  ASSERT_TRUE(report.ends_with("\r"));
  const std::string comment = report.substr(kPosition.size(), report.size() - kPosition.size() - 1);
  EXPECT_EQ(comment.size(), 63U);
  for (const char c : comment)
    EXPECT_GE(Asc(c), 32);
  // An ESC at its beginning would be a command of the modem.
  WriteFile("\x1B%R\x03\n");
  EXPECT_EQ(Report(), kPosition + "%R\r");
}

TEST_F(InfoFiles, AFolderIsNoComment) {
  fs::create_directory(Path());
  EXPECT_EQ(Report(), kPosition + "\r");
}

// Nobody writes into it: who opens it for reading would wait for ever.
TEST_F(InfoFiles, APipeIsNoCommentAndHoldsNothingUp) {
  ASSERT_EQ(::mkfifo(Path().c_str(), 0600), 0);
  EXPECT_EQ(Report(), kPosition + "\r");
}

// The other program puts a pipe in the file's place and the file back, again and again.
TEST_F(InfoFiles, APipeThatTakesTheFilesPlaceHoldsNothingUp) {
  const std::string pipe = station.folder.Sub("pipe");
  const std::string file = station.folder.Sub("file");
  std::atomic<bool> ended{false};
  std::thread swapper([&] {
    while (!ended) {
      ::mkfifo(pipe.c_str(), 0600);
      ::rename(pipe.c_str(), Path().c_str());
      ::close(::open(file.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
      ::rename(file.c_str(), Path().c_str());
    }
  });
  for (int reports = 0; reports < 2000; ++reports)
    EXPECT_EQ(Report(), kPosition + "\r");
  ended = true;
  swapper.join();
}

TEST_F(InfoFiles, ADeviceThatNeverEndsIsNoComment) {
  fs::create_symlink("/dev/zero", Path());
  EXPECT_EQ(Report(), kPosition + "\r");
}

TEST_F(InfoFiles, ALinkThatLeadsNowhereOrToItselfIsNoComment) {
  fs::create_symlink(station.folder.Sub("nothing"), Path());
  EXPECT_EQ(Report(), kPosition + "\r");
  fs::remove(Path());
  fs::create_symlink(Path(), Path());
  EXPECT_EQ(Report(), kPosition + "\r");
}

// The system's own user may read everything: it becomes somebody else for the test.
class OrdinaryUser {
 public:
  explicit OrdinaryUser(const std::string& folder) {
    constexpr uid_t kNobody = 65534;
    ::chmod(folder.c_str(), 0755);
    was_root_ = ::geteuid() == 0 && ::seteuid(kNobody) == 0;
  }
  ~OrdinaryUser() { EXPECT_TRUE(!was_root_ || ::seteuid(0) == 0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  bool was_root_ = false;
};

TEST_F(InfoFiles, ALockedFileIsNoComment) {
  WriteFile("not secret yet");
  ::chmod(Path().c_str(), 0644);
  {
    const OrdinaryUser user(station.folder.Path());
    EXPECT_EQ(Report(), kPosition + "not secret yet\r");
  }
  ::chmod(Path().c_str(), 0);
  const OrdinaryUser user(station.folder.Path());
  if (::geteuid() == 0) GTEST_SKIP() << "this user may read everything";
  EXPECT_EQ(Report(), kPosition + "\r");
}

// Another program rewrites, shortens and replaces it all the time: each report holds what was
// there, if need be half of a line and half of the next.
TEST_F(InfoFiles, AFileThatChangesWhileItIsReadGivesWhatWasThere) {
  const std::vector<std::string> lines = {"wind 270 at 12", std::string(5000, 'w'), "calm"};
  constexpr std::size_t kTurns = 60;
  std::atomic<bool> ended{false};
  std::atomic<std::size_t> turns{0};
  std::thread writer([&] {
    NativeFiles others{station.folder.Path()};
    for (std::size_t turn = 0; !ended; turns = ++turn) {
      const std::string text = lines[turn % lines.size()] + "\r\n";
      turn % 2 == 0 ? others.Write("C:\\WX.TXT", text) : others.Replace("C:\\WX.TXT", text);
      if (turn % 7 == 0) others.Remove("C:\\WX.TXT");
    }
  });
  for (std::size_t reports = 0; reports < kTurns || turns < kTurns; ++reports) {
    const std::string report = Report();
    if (!report.starts_with(kPosition)) {
      ADD_FAILURE() << report;
      break;
    }
    const std::string comment =
        report.substr(kPosition.size(), report.size() - kPosition.size() - 1);
    EXPECT_LE(comment.size(), 63U);
    EXPECT_EQ(comment.find_first_not_of("wind 270 at 12calm"), std::string::npos) << comment;
  }
  ended = true;
  writer.join();
}

TEST_F(InfoFiles, NamesThatMeanNoFileAreNoComment) {
  for (const char* name :
       {"{}", "{ }", "{C:}", "{C:\\}", "{..\\..\\..}", "{|<>*?}", "{\xFF\xFE}"}) {
    station.State().Transmission.InfoLine[0] = name;
    EXPECT_EQ(Report(), kPosition + "\r") << name;
  }
  // One brace alone is text.
  station.State().Transmission.InfoLine[0] = "{";
  EXPECT_EQ(Report(), kPosition + " {\r");
}

}  // namespace
}  // namespace zepril
