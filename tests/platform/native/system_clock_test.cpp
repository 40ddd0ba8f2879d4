// The computer's clock beside its files.
#include "platform/native/system_clock.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

#include "platform/native/native_files.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

TEST(SystemClock, TellsTheTimeInTheMeasureOfFilesStamps) {
  constexpr std::int64_t kHourNs = 3'600'000'000'000;
  TempFolder folder;
  NativeFiles files(folder.Path());
  ASSERT_TRUE(files.Write("C:\\A.TXT", "a"));
  const auto stamp = files.Stamp("C:\\A.TXT");
  ASSERT_TRUE(stamp);
  EXPECT_LT(std::abs(SystemClock().FileTimeNs() - stamp->ModifiedNs), kHourNs);
}

}  // namespace
}  // namespace zepril
