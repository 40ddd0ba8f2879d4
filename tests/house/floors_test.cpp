// A room includes what its arrows in cmake/floors.txt lead to and nothing else, each arrow runs
// downward and is needed; and the toolkit is known to few.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

struct Room {
  std::string Name;                 // folder below src
  std::vector<std::string> Arrows;  // rooms that it includes, itself aside
  int Floor = 0;                    // 0 is the topmost
};

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), {}};
}

// Rows of the table: "map: geodesy core", floors parted by "----".
std::vector<Room> RoomsOf(const std::vector<std::string>& lines) {
  std::vector<Room> rooms;
  int floor = 0;
  for (const std::string& line : lines) {
    if (line == "----") ++floor;
    const std::size_t colon = line.find(':');
    if (line.starts_with('#') || colon == std::string::npos) continue;
    rooms.push_back({line.substr(0, colon), WordsOf(line.substr(colon + 1)), floor});
  }
  return rooms;
}

// The table by which CMake links.
const std::vector<Room>& Rooms() {
  static const std::vector<Room> rooms =
      RoomsOf(LinesOf(ReadWhole(std::string(ZEPRIL_SOURCE_DIR) + "/cmake/floors.txt")));
  return rooms;
}

const Room* RoomNamed(const std::string& name) {
  for (const Room& room : Rooms()) {
    if (room.Name == name) return &room;
  }
  return nullptr;
}

bool LeadsTo(const Room& room, const std::string& name) {
  return std::find(room.Arrows.begin(), room.Arrows.end(), name) != room.Arrows.end();
}

// Files outside platform/qt and desktop that may include the toolkit.
const std::set<std::string> kToolkitPartOfTool = {"src/tool/render_command.cpp"};

std::vector<SourceFile> Sources() {
  return FilesBelow("src", {".h", ".cpp"});
}

const Room* RoomOf(const std::string& path) {
  const Room* found = nullptr;
  for (const Room& room : Rooms()) {
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

using Edges = std::map<std::string, std::set<std::string>>;

// From each file below src, without "src/", to the files that it includes.
Edges IncludesOfFiles() {
  Edges includes;
  for (const SourceFile& file : Sources()) {
    for (const std::string& line : file.Lines) {
      if (const auto included = IncludedHere(line)) includes[file.Path.substr(4)].insert(*included);
    }
  }
  return includes;
}

TEST(Floors, EveryIncludeFollowsAnArrow) {
  for (const auto& [file, includes] : IncludesOfFiles()) {
    const Room* room = RoomOf(file);
    if (room == nullptr) continue;
    for (const std::string& included : includes) {
      const Room* other = RoomOf(included);
      const std::string name = other ? other->Name : included.substr(0, included.find('/'));
      EXPECT_TRUE(name == room->Name || LeadsTo(*room, name))
          << file << " includes " << included << ": cmake/floors.txt has no arrow from "
          << room->Name << " to " << name;
    }
  }
}

TEST(Floors, EveryArrowIsNeededByAnInclude) {
  std::set<std::pair<std::string, std::string>> needed;
  for (const auto& [file, includes] : IncludesOfFiles()) {
    for (const std::string& included : includes) {
      if (RoomOf(file) && RoomOf(included))
        needed.insert({RoomOf(file)->Name, RoomOf(included)->Name});
    }
  }
  for (const Room& room : Rooms()) {
    for (const std::string& arrow : room.Arrows) {
      EXPECT_TRUE(needed.contains({room.Name, arrow}))
          << "nothing in " << room.Name << " includes " << arrow;
    }
  }
}

TEST(Floors, EveryArrowRunsDownward) {
  ASSERT_GT(Rooms().size(), 15U);
  std::set<std::string> names;
  for (const Room& room : Rooms()) {
    EXPECT_TRUE(names.insert(room.Name).second) << room.Name << " stands in the table twice";
    for (const std::string& arrow : room.Arrows) {
      const Room* lower = RoomNamed(arrow);
      ASSERT_NE(lower, nullptr) << arrow << " is no room";
      EXPECT_GT(lower->Floor, room.Floor) << room.Name << " to " << arrow;
    }
  }
}

TEST(Floors, TheTableIsReadRowByRow) {
  const auto rooms = RoomsOf({"# a: comment", "map: geodesy core", "----", "core:", ""});
  ASSERT_EQ(rooms.size(), 2U);
  EXPECT_EQ(rooms[0].Name, "map");
  EXPECT_EQ(rooms[0].Arrows, (std::vector<std::string>{"geodesy", "core"}));
  EXPECT_EQ(rooms[0].Floor, 0);
  EXPECT_EQ(rooms[1].Name, "core");
  EXPECT_TRUE(rooms[1].Arrows.empty());
  EXPECT_EQ(rooms[1].Floor, 1);
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
  const Edges files = IncludesOfFiles();
  Edges rooms;
  for (const auto& [file, includes] : files) {
    for (const std::string& included : includes) {
      const Room* from = RoomOf(file);
      const Room* to = RoomOf(included);
      if (from && to && from != to) rooms[from->Name].insert(to->Name);
    }
  }
  EXPECT_EQ(Joined(CircleIn(files)), "");
  EXPECT_EQ(Joined(CircleIn(rooms)), "");
}

TEST(Floors, TheTableItselfHasNoCircle) {
  Edges table;
  for (const Room& room : Rooms())
    table[room.Name].insert(room.Arrows.begin(), room.Arrows.end());
  EXPECT_EQ(Joined(CircleIn(table)), "");
}

}  // namespace
}  // namespace zepril
