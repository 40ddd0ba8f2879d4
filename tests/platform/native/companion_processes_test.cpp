// Real programs beside this one: a script is started, found, asked to close.
#include "platform/native/companion_processes.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/stat.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

class CompanionProcessesTest : public ::testing::Test {
 protected:
  CompanionProcessesTest() { ::mkfifo(folder.Sub("pipe").c_str(), 0600); }
  // A script that tells its folder through a pipe, which it holds for as long as it lives.
  std::string Script(const std::string& name, const std::string& then) {
    const std::string path = folder.Sub(name);
    std::ofstream(path) << "#!/bin/sh\nexec 3>pipe\npwd >&3\n" << then;
    ::chmod(path.c_str(), 0755);
    return path;
  }
  // What the script tells, as soon as it does.
  std::string Told() {
    std::string line;
    pipe.open(folder.Sub("pipe"));
    std::getline(pipe, line);
    return line;
  }
  // Waits for the end of the pipe, then for the system to write the process off.
  bool Ends(CompanionProcesses& starter, const std::string& path) {
    constexpr int kMostQuestions = 1000000;
    std::string rest;
    std::getline(pipe, rest);
    for (int question = 0; question < kMostQuestions; ++question) {
      if (starter.ProcessOf(path) == 0) return true;
    }
    return false;
  }

  static constexpr const char* kForever = "while :; do sleep 0.02; done\n";
  std::ifstream pipe;
  TempFolder folder;
  CompanionProcesses programs;
};

TEST_F(CompanionProcessesTest, AScriptIsStartedInItsFolderFoundAndClosed) {
  const std::string path = Script("digi.sh", kForever);
  EXPECT_EQ(programs.ProcessOf(path), 0);
  ASSERT_TRUE(programs.Start(path));
  EXPECT_NE(programs.ProcessOf(path), 0);
  const std::unique_ptr<char, void (*)(void*)> real(::realpath(folder.Path().c_str(), nullptr),
                                                    std::free);
  EXPECT_EQ(Told(), real.get());
  programs.AskToClose(path);
  EXPECT_TRUE(Ends(programs, path));
}

TEST_F(CompanionProcessesTest, OneStartedByAnotherIsFoundAndLeftAlone) {
  const std::string path = Script("byhand.sh", kForever);
  CompanionProcesses another;
  ASSERT_TRUE(another.Start(path));
  EXPECT_NE(Told(), "");
  const int process = programs.ProcessOf(path);
  EXPECT_EQ(process, another.ProcessOf(path));
  programs.AskToClose(path);
  EXPECT_EQ(::kill(process, 0), 0);
  EXPECT_EQ(another.ProcessOf(path), process);
  another.AskToClose(path);
  EXPECT_TRUE(Ends(another, path));
  EXPECT_EQ(programs.ProcessOf(path), 0);
}

TEST_F(CompanionProcessesTest, AnotherProgramWithTheFileOpenIsNotIt) {
  const std::string path = Script("digi.sh", kForever);
  const std::string reader = folder.Sub("reader.sh");
  std::ofstream(reader) << "#!/bin/sh\nexec 3>pipe\necho reads >&3\nexec tail -f " << path << "\n";
  ::chmod(reader.c_str(), 0755);
  ASSERT_TRUE(programs.Start(reader));
  EXPECT_EQ(Told(), "reads");
  const int process = programs.ProcessOf(reader);
  const std::string name = "/proc/" + std::to_string(process) + "/comm";
  std::string runs;
  while (runs != "tail")
    std::getline(std::ifstream(name), runs);
  EXPECT_EQ(programs.ProcessOf(path), 0);
  programs.AskToClose(reader);
  EXPECT_TRUE(Ends(programs, reader));
}

TEST_F(CompanionProcessesTest, WhatIsNoProgramIsNotStarted) {
  EXPECT_FALSE(programs.Start(folder.Sub("missing")));
  EXPECT_FALSE(programs.Start(folder.Path()));
  std::ofstream(folder.Sub("AGWUIDIGI.EXE")) << "MZ";
  ::chmod(folder.Sub("AGWUIDIGI.EXE").c_str(), 0755);
  EXPECT_FALSE(programs.Start(folder.Sub("AGWUIDIGI.EXE")));
  EXPECT_EQ(programs.ProcessOf(folder.Sub("AGWUIDIGI.EXE")), 0);
  programs.AskToClose(folder.Sub("missing"));
}

TEST_F(CompanionProcessesTest, AProgramThatEndsByItselfIsNoMoreThere) {
  const std::string path = Script("short.sh", "exit 0\n");
  ASSERT_TRUE(programs.Start(path));
  EXPECT_NE(Told(), "");
  EXPECT_TRUE(Ends(programs, path));
}

}  // namespace
}  // namespace zepril
