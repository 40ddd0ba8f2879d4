// What the generators write is what lies in data/, byte for byte.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/doubles/temp_folder.h"
#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

class Generators : public ::testing::Test {
 protected:
  static std::string Root() { return ZEPRIL_SOURCE_DIR; }

  static void Run(const std::string& program, const std::string& arguments) {
    const std::string command = "'" + program + "' " + arguments + " >/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
  }
  static std::string Quoted(const std::string& path) { return "'" + path + "' "; }

  void ExpectSame(const std::string& made, const std::string& shipped) {
    const std::string bytes = ReadWhole(folder.Sub(made));
    EXPECT_FALSE(bytes.empty()) << made;
    EXPECT_TRUE(bytes == ReadWhole(Root() + "/data/" + shipped)) << shipped << " differs";
  }

  TempFolder folder;
};

TEST_F(Generators, DrawTheShippedFonts) {
  Run(ZEPRIL_MAKE_FONTS, Quoted(Root() + "/tools/make_fonts/qx7_glyphs.txt") +
                             Quoted(folder.Path()) + Quoted(folder.Sub("letters.txt")));
  ExpectSame("QX7_F6.ttf", "fonts/QX7_F6.ttf");
  ExpectSame("ZEPRIL_Marks.ttf", "fonts/ZEPRIL_Marks.ttf");
  ExpectSame("letters.txt", "maps/letters.txt");
}

TEST_F(Generators, DrawTheShippedSymbols) {
  Run(ZEPRIL_MAKE_SYMBOLS, Quoted(Root() + "/tools/make_symbols/symbols.txt") +
                               Quoted(Root() + "/tools/make_symbols/small_letters.txt") +
                               Quoted(Root() + "/tools/make_fonts/qx7_glyphs.txt") +
                               Quoted(folder.Path()));
  ExpectSame("ZEPRSYM0.BMP", "ZEPRSYM0.BMP");
  ExpectSame("ZEPRSYM1.BMP", "ZEPRSYM1.BMP");
}

TEST_F(Generators, SoundTheShippedAlarm) {
  Run(ZEPRIL_MAKE_ALARM, Quoted(folder.Sub("ALARM.WAV")));
  ExpectSame("ALARM.WAV", "ALARM.WAV");
}

TEST_F(Generators, InventTheShippedTraffic) {
  Run(ZEPRIL_MAKE_DEMO_TRAFFIC, Quoted(folder.Sub("traffic.txt")));
  ExpectSame("traffic.txt", "demo/traffic.txt");
}

}  // namespace
}  // namespace zepril
