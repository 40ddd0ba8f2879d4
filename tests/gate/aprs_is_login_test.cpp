// Passcodes of known calls, the login line to the byte, and answers that do and don't count.
#include "gate/aprs_is_login.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(Passcode, IsThePublishedHash) {
  EXPECT_EQ(PasscodeOf("N0CALL"), "13023");
  EXPECT_EQ(PasscodeOf("QX7KB"), "22513");
  EXPECT_EQ(PasscodeOf("AB1CD"), "18403");
}

TEST(Passcode, KnowsTheCallInAnyCaseWithoutSsidAndBlanks) {
  EXPECT_EQ(PasscodeOf("qx7ab"), "22523");
  EXPECT_EQ(PasscodeOf("QX7AB-10"), "22523");
  EXPECT_EQ(PasscodeOf("  QX7AB  "), "22523");
}

TEST(Passcode, AnEmptyCallHasNone) {
  EXPECT_EQ(PasscodeOf(""), "0");
  EXPECT_EQ(PasscodeOf("   "), "0");
  EXPECT_EQ(PasscodeOf("-10"), "0");
}

TEST(Login, LineNamesCallPasscodeAndProgram) {
  EXPECT_EQ(LoginLine("QX7KB", "22513", "8.08"),
            "user QX7KB pass 22513 vers ZEPRIL 8.08 filter b/ZZ9ZZZ\r\n");
  EXPECT_EQ(LoginLine(" QX7KB-10 ", "22513", "8.08"),
            "user QX7KB pass 22513 vers ZEPRIL 8.08 filter b/ZZ9ZZZ\r\n");
}

TEST(Login, VerifiedIsToldOfTheOwnCallInAnyCase) {
  EXPECT_TRUE(TellsVerified("# aprsd\r\n# LOGRESP qx7kb Verified, server X\r\n", "QX7KB"));
  EXPECT_TRUE(TellsVerified("# logresp QX7KB verified", "QX7KB-10"));
  EXPECT_FALSE(TellsVerified("# logresp QX7KB unverified, server X", "QX7KB"));
  EXPECT_FALSE(TellsVerified("# logresp QX7KB  verified, server X", "QX7KB"));
  EXPECT_FALSE(TellsVerified("# logresp QX7KBA verified, server X", "QX7KB"));
  EXPECT_FALSE(TellsVerified("# logresp QX7KB-10 verified, server X", "QX7KB"));
  EXPECT_FALSE(TellsVerified("", "QX7KB"));
}

TEST(Login, ARefusalIsToldToo) {
  EXPECT_TRUE(TellsUnverified("# logresp QX7KB unverified, server X", "QX7KB"));
  EXPECT_FALSE(TellsUnverified("# logresp QX7KB verified, server X", "QX7KB"));
  EXPECT_FALSE(TellsUnverified("# logresp QX1AB unverified, server X", "QX7KB"));
}

}  // namespace
}  // namespace zepril
