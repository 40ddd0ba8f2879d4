// A room includes only what stands below it: never upward, never sideways, never in a circle; and
// the toolkit is known to few.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

struct Room {
  std::string Name;                // folder below src
  std::vector<std::string> Below;  // rooms that it may include, itself aside
};

// The floors, from the ground up.
const std::vector<Room> kRooms = {
    {"platform", {}},
    {"platform/native", {"platform"}},
    {"core", {"platform"}},
    {"platform/qt", {"platform", "platform/native", "core"}},
    {"geodesy", {"platform", "core"}},
    {"gps", {"platform", "core", "geodesy"}},
    {"links", {"platform", "core", "geodesy"}},
    {"config", {"platform", "core", "geodesy"}},
    {"reception", {"platform", "core", "geodesy", "gps", "links", "config"}},
    {"map", {"platform", "core", "geodesy", "gps", "links", "config", "reception"}},
    {"weather", {"platform", "core", "geodesy", "gps", "links", "config", "reception"}},
    {"sample_maps", {"platform", "core", "geodesy"}},
    {"viewers",
     {"platform", "core", "geodesy", "gps", "links", "config", "reception", "map", "weather"}},
    {"internet",
     {"platform", "core", "geodesy", "gps", "links", "config", "reception", "map", "weather"}},
    {"transmit",
     {"platform", "core", "geodesy", "gps", "links", "config", "reception", "map", "weather"}},
    {"station",
     {"platform", "platform/native", "core", "geodesy", "gps", "links", "config", "reception",
      "map", "weather", "viewers", "internet", "transmit"}},
    {"desktop",
     {"platform", "platform/native", "platform/qt", "core", "geodesy", "gps", "links", "config",
      "reception", "map", "weather", "station", "viewers", "internet", "transmit", "sample_maps"}},
    {"tool",
     {"platform", "platform/native", "platform/qt", "core", "geodesy", "gps", "links", "config",
      "reception", "map", "weather", "station"}},
};

// Files outside platform/qt and desktop that may include the toolkit.
const std::set<std::string> kToolkitPartOfTool = {"src/tool/render_command.cpp"};

std::vector<SourceFile> Sources() {
  return FilesBelow("src", {".h", ".cpp"});
}

const Room* RoomOf(const std::string& path) {
  const Room* found = nullptr;
  for (const Room& room : kRooms) {
    const bool inside = path.starts_with(room.Name + "/");
    if (inside && (found == nullptr || room.Name.size() > found->Name.size())) found = &room;
  }
  return found;
}

// "core/timer.h" of `#include "core/timer.h"`; nothing for other lines.
std::optional<std::string> IncludedHere(const std::string& line) {
  const std::string mark = "#include \"";
  if (!line.starts_with(mark)) return std::nullopt;
  return line.substr(mark.size(), line.find('"', mark.size()) - mark.size());
}

bool IncludesToolkit(const std::string& line) {
  return line.starts_with("#include <Q") || line.starts_with("#include <q");
}

TEST(Floors, EveryFileStandsInARoom) {
  const auto sources = Sources();
  ASSERT_GT(sources.size(), 100U);
  for (const SourceFile& file : sources) {
    EXPECT_NE(RoomOf(file.Path.substr(4)), nullptr) << file.Path << " stands in no known room";
  }
}

TEST(Floors, NoIncludeRunsUpwardOrSideways) {
  for (const SourceFile& file : Sources()) {
    const Room* room = RoomOf(file.Path.substr(4));
    if (room == nullptr) continue;
    for (const std::string& line : file.Lines) {
      const auto included = IncludedHere(line);
      if (!included) continue;
      const Room* other = RoomOf(*included);
      const std::string name = other ? other->Name : included->substr(0, included->find('/'));
      const bool allowed = name == room->Name || std::find(room->Below.begin(), room->Below.end(),
                                                           name) != room->Below.end();
      EXPECT_TRUE(allowed) << file.Path << " includes " << *included;
    }
  }
}

TEST(Floors, OnlyAFewKnowTheToolkit) {
  for (const SourceFile& file : Sources()) {
    const bool allowed = file.Path.starts_with("src/platform/qt/") ||
                         file.Path.starts_with("src/desktop/") ||
                         kToolkitPartOfTool.contains(file.Path);
    if (allowed) continue;
    for (const std::string& line : file.Lines) {
      EXPECT_FALSE(IncludesToolkit(line)) << file.Path << ": " << line;
      const auto included = IncludedHere(line);
      EXPECT_FALSE(included && included->starts_with("platform/qt/")) << file.Path << ": " << line;
    }
  }
}

using Edges = std::map<std::string, std::set<std::string>>;

// The nodes of a circle in `edges`, empty when there is none.
std::vector<std::string> CircleIn(const Edges& edges) {
  std::set<std::string> done;
  std::vector<std::string> trail;
  std::vector<std::string> circle;
  const std::function<void(const std::string&)> visit = [&](const std::string& node) {
    if (!circle.empty() || done.contains(node)) return;
    const auto on_trail = std::find(trail.begin(), trail.end(), node);
    if (on_trail != trail.end()) {
      circle.assign(on_trail, trail.end());
      return;
    }
    trail.push_back(node);
    const auto next = edges.find(node);
    if (next != edges.end()) {
      for (const std::string& target : next->second)
        visit(target);
    }
    trail.pop_back();
    done.insert(node);
  };
  for (const auto& [node, targets] : edges)
    visit(node);
  return circle;
}

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names)
    text += name + " > ";
  return text;
}

TEST(Floors, CirclesAreFound) {
  EXPECT_TRUE(CircleIn({{"a", {"b", "c"}}, {"b", {"c"}}}).empty());
  EXPECT_EQ(CircleIn({{"a", {"b"}}, {"b", {"c"}}, {"c", {"b"}}}),
            (std::vector<std::string>{"b", "c"}));
}

TEST(Floors, NoCircleBetweenFilesOrRooms) {
  Edges files;
  Edges rooms;
  for (const SourceFile& file : Sources()) {
    const std::string here = file.Path.substr(4);
    for (const std::string& line : file.Lines) {
      const auto included = IncludedHere(line);
      if (!included) continue;
      files[here].insert(*included);
      const Room* from = RoomOf(here);
      const Room* to = RoomOf(*included);
      if (from && to && from != to) rooms[from->Name].insert(to->Name);
    }
  }
  EXPECT_EQ(Joined(CircleIn(files)), "");
  EXPECT_EQ(Joined(CircleIn(rooms)), "");
}

TEST(Floors, TheTableItselfHasNoCircle) {
  Edges table;
  for (const Room& room : kRooms)
    table[room.Name].insert(room.Below.begin(), room.Below.end());
  EXPECT_EQ(Joined(CircleIn(table)), "");
}

}  // namespace
}  // namespace zepril
