// One running program a folder, also after a crash
#include "platform/native/run_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

class RunLockTest : public ::testing::Test {
 protected:
  TempFolder folder;
  std::string path = folder.Sub("ZEPRIL.RUN");
};

TEST_F(RunLockTest, TheSecondIsRefusedUntilTheFirstEnds) {
  {
    RunLock first;
    EXPECT_EQ(first.Take(path), RunLock::Outcome::Taken);
    RunLock second;
    EXPECT_EQ(second.Take(path), RunLock::Outcome::TakenByOther);
    RunLock third;
    EXPECT_EQ(third.Take(path), RunLock::Outcome::TakenByOther);
  }
  RunLock next;
  EXPECT_EQ(next.Take(path), RunLock::Outcome::Taken);
}

TEST_F(RunLockTest, TheLockOfACrashedRunBlocksNobody) {
  const pid_t child = ::fork();
  if (child == 0) {
    RunLock lock;
    lock.Take(path);
    ::_exit(0);  // without an orderly end
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_TRUE(std::filesystem::exists(path));
  RunLock next;
  EXPECT_EQ(next.Take(path), RunLock::Outcome::Taken);
}

TEST_F(RunLockTest, AWishToComeToTheFrontIsHeardOnce) {
  EXPECT_FALSE(RunLock::AskForFront(path));
  RunLock first;
  first.Take(path);
  EXPECT_FALSE(first.FrontWanted());
  EXPECT_TRUE(RunLock::AskForFront(path));
  EXPECT_TRUE(RunLock::AskForFront(path));
  EXPECT_TRUE(first.FrontWanted());
  EXPECT_FALSE(first.FrontWanted());
}

TEST_F(RunLockTest, AWishThatAFormerRunDidNotHearIsForgotten) {
  std::ofstream(path) << "F";
  RunLock next;
  ASSERT_EQ(next.Take(path), RunLock::Outcome::Taken);
  EXPECT_FALSE(next.FrontWanted());
}

TEST_F(RunLockTest, AFolderThatTakesNoFileIsNoHindrance) {
  RunLock lock;
  EXPECT_EQ(lock.Take(folder.Sub("no/such/folder")), RunLock::Outcome::Unknown);
  EXPECT_FALSE(lock.FrontWanted());
}

}  // namespace
}  // namespace zepril
