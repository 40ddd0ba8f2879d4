// Every file opens with a line of what it is for, and `scripts/map` prints them all.
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

bool EndsInOneOf(const std::string& path, const std::vector<std::string>& endings) {
  for (const std::string& ending : endings) {
    if (path.ends_with(ending)) return true;
  }
  return false;
}

std::string CommentMarkOf(const std::string& path) {
  return EndsInOneOf(path, {".h", ".cpp", ".mjs"}) ? "//" : "#";
}

// What the first comment of a file begins with, its first line alone; empty where there is none.
std::string OpeningLine(const SourceFile& file) {
  const std::string mark = CommentMarkOf(file.Path) + " ";
  const std::size_t first = !file.Lines.empty() && file.Lines[0].starts_with("#!") ? 1 : 0;
  if (file.Lines.size() <= first || !file.Lines[first].starts_with(mark)) return "";
  return file.Lines[first].substr(mark.size());
}

// A line like "---- Speeds ----" parts a file, it does not tell what the file is for.
bool TellsSomething(const std::string& line) {
  constexpr std::size_t kShortest = 12;
  const auto first = static_cast<unsigned char>(line.empty() ? '-' : line.front());
  return line.size() >= kShortest && (std::isalnum(first) || first == '"' || first == '`');
}

std::vector<SourceFile> FilesOfTheHouse() {
  std::vector<SourceFile> files;
  for (const std::string folder : {"src", "tests", "tools", "bench", "fuzz", "cmake", "scripts"}) {
    for (SourceFile& file : FilesBelow(folder)) {
      // Seeds and test data are told by their folder.
      if (file.Path.starts_with("fuzz/corpus/") || file.Path.starts_with("tests/data/")) continue;
      files.push_back(std::move(file));
    }
  }
  for (const std::string path : {"CMakeLists.txt", "run", "test"}) {
    files.push_back({path, LinesOf(ReadWhole(std::string(ZEPRIL_SOURCE_DIR) + "/" + path))});
  }
  return files;
}

std::string OutputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
  std::string text;
  std::array<char, 4096> block;
  while (pipe != nullptr) {
    const std::size_t length = std::fread(block.data(), 1, block.size(), pipe.get());
    if (length == 0) break;
    text.append(block.data(), length);
  }
  return text;
}

// The files of a row of the map: "timer.h: what it is for", a pair as "timer.{h,cpp}: ...".
std::vector<std::string> FilesOfRow(const std::string& row) {
  const std::string path = row.substr(0, row.find(": "));
  const std::string pair = ".{h,cpp}";
  if (!path.ends_with(pair)) return {path};
  const std::string stem = path.substr(0, path.size() - pair.size());
  return {stem + ".h", stem + ".cpp"};
}

TEST(MapOfFiles, EveryFileOpensWithWhatItIsFor) {
  const auto files = FilesOfTheHouse();
  ASSERT_GT(files.size(), 500U);
  for (const SourceFile& file : files) {
    EXPECT_TRUE(TellsSomething(OpeningLine(file)))
        << file.Path << " does not open with a line of what it is for";
  }
}

TEST(MapOfFiles, LinesThatTellNothingAreRefused) {
  EXPECT_FALSE(TellsSomething(OpeningLine({"a.cpp", {"#include <string>"}})));
  EXPECT_FALSE(TellsSomething(OpeningLine({"a.cpp", {"", "// Timers that repeat."}})));
  EXPECT_FALSE(TellsSomething(OpeningLine({"a.cpp", {"// ---- Speeds -------"}})));
  EXPECT_FALSE(TellsSomething(OpeningLine({"a.sh", {"#!/bin/sh", "set -e"}})));
  EXPECT_FALSE(TellsSomething(OpeningLine({"a.h", {}})));
  EXPECT_TRUE(TellsSomething(OpeningLine({"a.h", {"// Timers that repeat."}})));
  EXPECT_TRUE(TellsSomething(OpeningLine({"a.sh", {"#!/bin/sh", "# Runs all tests."}})));
}

TEST(MapOfFiles, TheScriptPrintsEveryFileOnceWithItsPurpose) {
  std::set<std::string> printed;
  const std::string root = ZEPRIL_SOURCE_DIR;
  for (const std::string& row : LinesOf(OutputOf("'" + root + "/scripts/map'"))) {
    if (row.empty()) continue;
    ASSERT_NE(row.find(": "), std::string::npos) << row;
    EXPECT_GE(row.size() - row.find(": "), 12U) << row;
    for (const std::string& path : FilesOfRow(row))
      EXPECT_TRUE(printed.insert(path).second) << path << " is printed twice";
  }
  for (const SourceFile& file : FilesOfTheHouse()) {
    EXPECT_EQ(printed.erase(file.Path), 1U) << file.Path << " is not printed";
  }
  EXPECT_TRUE(printed.empty()) << *printed.begin() << " is printed but not there";
}

}  // namespace
}  // namespace zepril
