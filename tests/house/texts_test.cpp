// What is shown or said to the operator stands in core/texts, and the names of controls stand there
// once: neither windows nor logic hold such literals.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

// The contents of the line's string literals; those in a comment do not count.
std::vector<std::string> LiteralsOf(std::string_view line) {
  std::vector<std::string> literals;
  if (line.starts_with("#include")) return literals;
  bool inside = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (!inside && line.substr(at, 2) == "//") break;
    if (!inside && line.substr(at, 3) == "'\"'") {
      at += 2;
    } else if (line[at] == '"') {
      inside = !inside;
      if (inside) literals.emplace_back();
    } else if (inside) {
      literals.back() += line[at];
      if (line[at] == '\\' && at + 1 < line.size()) literals.back() += line[++at];
    }
  }
  return literals;
}

bool HasLetters(const std::string& literal) {
  return std::regex_search(literal, std::regex("[A-Za-z]"));
}

// Names of rows as the tables tell them; those of numbered controls stand with "#" for the number.
std::set<std::string> NamesIn(const SourceFile& table) {
  const std::regex row(R"r(^ *\{"(\w+)", (On|At|All)<&[\w:]+(, (\w+))?>\(\))r");
  std::set<std::string> names;
  for (const std::string& line : table.Lines) {
    std::smatch match;
    if (!std::regex_search(line, match, row)) continue;
    const bool numbered = match[2] == "All" && match[4] != "kUnnumbered";
    const std::string name = match[1].str() + (numbered ? "#" : "");
    EXPECT_TRUE(names.insert(name).second) << table.Path << " has two rows for " << name;
  }
  return names;
}

std::set<std::string> ControlNames() {
  std::set<std::string> names;
  for (const SourceFile& table : FilesBelow("src/core/texts", {".cpp"}))
    names.merge(NamesIn(table));
  return names;
}

bool NamesControl(const std::set<std::string>& names, const std::string& literal) {
  if (names.contains(literal)) return true;
  const std::size_t digits = literal.find_last_not_of("0123456789") + 1;
  return digits < literal.size() && names.contains(literal.substr(0, digits) + "#");
}

// Rooms whose words can come to the operator's eyes.
std::vector<SourceFile> WindowsAndLogic() {
  std::vector<SourceFile> files;
  for (const SourceFile& file : FilesBelow("src", {".h", ".cpp"})) {
    const bool speaks =
        !file.Path.starts_with("src/core/texts/") && !file.Path.starts_with("src/platform/") &&
        !file.Path.starts_with("src/tool/") && !file.Path.starts_with("src/sample_maps/");
    if (speaks) files.push_back(file);
  }
  return files;
}

// All that the windows hold in quotes: names for machines.
const std::set<std::string>& KnownOfWindows() {
  static const std::set<std::string> known = {
      // Widgets that are no controls.
      "Form0", "Form1", "BottomLine", "Drawer", "LinkLamp", "LinkWords", "MapBar", "MapProgress",
      "ReceptionRests", "StartFields", "Caption",
      // Properties of widgets, and their values in style sheets.
      "accessible_role", "alarm", "bare", "call", "line", "title", "covered", "dim", "fault",
      "group", "keeps_keys", "leaving", "notice", "on_air", "over_map", "own_object", "panel",
      "picture_only", "quiet", "spoken_name", "third_state", "three_states", "tight", "typed",
      "true",
      // Style sheets.
      "background: %1;", "color: %1;", "padding: 2px 2px;",
      "font-size: 15px; font-weight: bold; min-height: 36px;",
      "font-size: 28px; font-weight: bold; letter-spacing: 4px;",
      // Files, their keys and kinds, the environment, patterns.
      "/data", "/fonts", "/maps", R"(\\U33)", R"(\\ZEPRIL.RUN)", "M*.*", "MAIN", "START", "MAX",
      "DRAWER", "DRAWERHEIGHT", "RAW", "bmp", "dib", "gif", "jpeg", "pbm", "pgm", "png", "ppm",
      "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "TEMP", "zepril", "Fusion", R"(\x01)",
      R"(\u00A0\u00A0)", R"(([/_-])(?!\\x{200B}))", R"(\\1\u200B)"};
  return known;
}

// Files of the logic that write words for the air, for a modem, for a file or for the tool.
bool SpeaksToOthers(const std::string& path) {
  static const std::regex others(
      "^src/config/|/"
      "(pk232|scs_tnc|scs_ptc|dialects|identification|symbol_table|packet_decoder|picture_viewer|"
      "gate_forms|aprs_is_login|way_lines|iono_pages|station_logs|inet_lines)"
      "\\.cpp$");
  return std::regex_search(path, others);
}

// Two words in a row, or letters that go straight to what is seen.
bool ShowsWords(const std::string& line, const std::string& literal) {
  static const std::regex two_words("[A-Za-z]{2,} +[A-Za-z]{2,}");
  static const std::regex to_be_seen(R"((Caption|ToolTip)[^=]*[^=!<>]\+?=[^=]|\b(Tell|Ask)\()");
  if (std::regex_search(literal, two_words)) return true;
  // A line end between two texts is none itself.
  return literal != "\\n" && HasLetters(literal) && std::regex_search(line, to_be_seen);
}

TEST(Texts, NamesOfControlsStandInTheirTableOnly) {
  const std::set<std::string> names = ControlNames();
  ASSERT_GT(names.size(), 150U);
  for (const SourceFile& file : WindowsAndLogic()) {
    for (const std::string& line : file.Lines) {
      for (const std::string& literal : LiteralsOf(line))
        EXPECT_FALSE(NamesControl(names, literal)) << file.Path << ": " << line;
    }
  }
}

TEST(Texts, WindowsSayNothingOfTheirOwn) {
  for (const SourceFile& file : FilesBelow("src/desktop", {".h", ".cpp"})) {
    for (const std::string& line : file.Lines) {
      for (const std::string& literal : LiteralsOf(line)) {
        EXPECT_TRUE(!HasLetters(literal) || KnownOfWindows().contains(literal))
            << file.Path << ": " << line;
      }
    }
  }
}

TEST(Texts, LogicTakesItsWordsFromTheTables) {
  for (const SourceFile& file : WindowsAndLogic()) {
    if (file.Path.starts_with("src/desktop/") || SpeaksToOthers(file.Path)) continue;
    for (const std::string& line : file.Lines) {
      for (const std::string& literal : LiteralsOf(line))
        EXPECT_FALSE(ShowsWords(line, literal)) << file.Path << ": " << line;
    }
  }
}

TEST(Texts, WordsAreRecognised) {
  EXPECT_TRUE(ShowsWords("x", "can't be read"));
  EXPECT_TRUE(ShowsWords(R"(label.Caption = "MAP";)", "MAP"));
  EXPECT_TRUE(ShowsWords(R"(boxes.Tell(title, "OK");)", "OK"));
  EXPECT_FALSE(ShowsWords(R"(if (label.Caption == "MAP") return;)", "MAP"));
  EXPECT_FALSE(ShowsWords("x", "LOG"));
  const std::set<std::string> names{"Check4", "InfoField#"};
  EXPECT_TRUE(NamesControl(names, "Check4"));
  EXPECT_TRUE(NamesControl(names, "InfoField2"));
  EXPECT_FALSE(NamesControl(names, "InfoField"));
  EXPECT_EQ(LiteralsOf(R"(f("a\"b", '"', "c");  // "d")"),
            (std::vector<std::string>{R"(a\"b)", "c"}));
}

}  // namespace
}  // namespace zepril
