// Rules that the compiler does not know: numbers only through core/text_fields, no loose memory, no
// path of anybody's machine.
#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

struct Refusal {
  std::regex Pattern;
  std::string Reason;
};

const std::vector<Refusal>& LocaleDependent() {
  static const std::vector<Refusal> refusals = {
      {std::regex(R"(\b(std::)?(stod|stof|stold|stoi|stol|stoll|stoul|stoull)\s*\()"),
       "numbers are read by core/text_fields"},
      {std::regex(
           R"(\b(strtod|strtof|strtold|strtol|strtoul|strtoll|strtoull|atof|atoi|atol)\s*\()"),
       "numbers are read by core/text_fields"},
      {std::regex(R"(\bto_string\s*\()"), "numbers are written by core/text_fields"},
      {std::regex(R"(\b(i|o)?stringstream\b|\bstd::format\b|\bstd::put_time\b)"),
       "texts are put together by core/text_fields"},
      {std::regex(R"(\bsetlocale\b|\bstd::locale\b|\blocaleconv\b|\bQLocale\b)"),
       "the program knows no locale"},
      {std::regex(R"(\b(sscanf|scanf|fscanf)\s*\()"), "numbers are read by core/text_fields"},
      {std::regex(R"(\b(sprintf|vsprintf|strcpy|strcat|gets)\s*\()"), "unbounded"},
      {std::regex(R"(\.(toDouble|toFloat)\s*\()"), "numbers are read by core/text_fields"},
  };
  return refusals;
}

// A conversion of a floating number inside a format text.
const std::regex& FloatFormat() {
  static const std::regex pattern(R"(printf\s*\(.*%[-+ #0-9.*]*l?[aefgAEFG])");
  return pattern;
}

bool KnowsNumbers(const std::string& path) {
  return path.starts_with("src/core/text_fields.");
}

TEST(CodeRules, NumbersAreReadAndWrittenInOnePlace) {
  for (const SourceFile& file : FilesBelow("src", {".h", ".cpp"})) {
    if (KnowsNumbers(file.Path)) continue;
    for (const std::string& line : file.Lines) {
      for (const Refusal& refusal : LocaleDependent()) {
        EXPECT_FALSE(std::regex_search(CodeOf(line), refusal.Pattern))
            << file.Path << ": " << line << "\n  " << refusal.Reason;
      }
      EXPECT_FALSE(std::regex_search(line, FloatFormat())) << file.Path << ": " << line;
    }
  }
}

TEST(CodeRules, MemoryHasAnOwner) {
  const std::regex loose(
      R"((=|\(|,|return|^)\s*(::)?new\b|\bdelete\b\s*(\[\s*\]\s*)?[A-Za-z_(*]|\b(malloc|calloc|realloc|free)\s*\()");
  for (const SourceFile& file : FilesBelow("src", {".h", ".cpp"})) {
    // In the windows the parent widget owns what is made with `new`.
    if (file.Path.starts_with("src/desktop/")) continue;
    for (const std::string& line : file.Lines) {
      EXPECT_FALSE(std::regex_search(CodeOf(line), loose)) << file.Path << ": " << line;
    }
  }
}

TEST(CodeRules, RefusedFormsAreRecognised) {
  const auto refused = [](const std::string& line) {
    for (const Refusal& refusal : LocaleDependent()) {
      if (std::regex_search(CodeOf(line), refusal.Pattern)) return true;
    }
    return std::regex_search(line, FloatFormat());
  };
  EXPECT_TRUE(refused("  x = std::stod(text);"));
  EXPECT_TRUE(refused("  std::printf(\"%.3f\\n\", x);"));
  EXPECT_FALSE(refused("  // stod( is not used"));
  EXPECT_FALSE(refused("  Say(\"atoi(\");"));
  EXPECT_FALSE(refused("  std::printf(\"%d\\n\", x);"));
}

TEST(CodeRules, HeadersAreGuardedByPragma) {
  for (const std::string folder : {"src", "tests", "tools", "bench", "fuzz"}) {
    for (const SourceFile& file : FilesBelow(folder, {".h"})) {
      bool guarded = false;
      for (const std::string& line : file.Lines)
        guarded = guarded || line == "#pragma once";
      EXPECT_TRUE(guarded) << file.Path;
    }
  }
}

TEST(CodeRules, NoFileKnowsAMachine) {
  // Put together here, so that this file does not hold what it looks for.
  const std::string slash = "/";
  const std::vector<std::string> refused = {slash + "work/", slash + "root/", slash + "home/",
                                            slash + "tmp/bash"};
  for (const std::string folder :
       {"src", "tests", "tools", "bench", "fuzz", "docs", "cmake", "scripts"}) {
    for (const SourceFile& file :
         FilesBelow(folder, {".h", ".cpp", ".md", ".txt", ".cmake", ".sh", ".mjs"})) {
      for (const std::string& line : file.Lines) {
        for (const std::string& path : refused) {
          // "src/work/" and the like are no machine paths.
          const std::size_t found = line.find(path);
          const bool machine =
              found != std::string::npos &&
              (found == 0 || !std::isalnum(static_cast<unsigned char>(line[found - 1])));
          EXPECT_FALSE(machine) << file.Path << ": " << line;
        }
      }
    }
  }
}

}  // namespace
}  // namespace zepril
