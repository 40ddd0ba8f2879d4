// Reads lines KEY=value within their bounds, and writes those that can stand in one line.
#include "config/window_file.h"

#include <algorithm>

#include "core/text_fields.h"
#include "platform/code_page.h"

namespace zepril {
namespace {

constexpr int kFarthest = 100000;
constexpr const char* kLineEnd = "\r\n";

struct WindowLine {
  std::string Key;  // capitals; empty for a line that is none of ours
  std::string Value;
  std::string Text;
};

WindowLine ReadLine(std::string_view text) {
  WindowLine line;
  line.Text = text;
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) return line;
  if (std::any_of(text.begin(), text.end(), IsControlCharacter)) return line;
  line.Key = Upper(Trim(text.substr(0, equals)));
  line.Value = Trim(text.substr(equals + 1));
  return line;
}

// Up to the most that is read; what is longer than a line may be is left out.
std::vector<WindowLine> ReadLines(const Files& files, const std::string& program_folder) {
  std::vector<WindowLine> lines;
  files.ReadLines(WindowPath(program_folder), [&](std::string_view text) {
    if (text.size() <= kLongestWindowLine) lines.push_back(ReadLine(text));
    return static_cast<int>(lines.size()) < kMostWindowLines;
  });
  return lines;
}

// Nothing when it can't stand in one line.
std::optional<std::string> LineOf(const std::string& key, std::string value) {
  std::replace_if(value.begin(), value.end(), IsControlCharacter, ' ');
  std::string line = key + "=" + value;
  if (line.size() > kLongestWindowLine) return std::nullopt;
  return line;
}

std::optional<int> PlainWhole(std::string_view text, int lowest, int highest) {
  const std::string_view digits = text.substr(text.starts_with("-") ? 1 : 0);
  if (digits.empty() || !std::all_of(digits.begin(), digits.end(), IsDigit)) return std::nullopt;
  return WholeVal(text, lowest, highest);
}

}  // namespace

std::string WindowPath(const std::string& program_folder) {
  return program_folder + "\\WINDOW.TXT";
}

WindowValues ReadWindowFile(const Files& files, const std::string& program_folder) {
  WindowValues values;
  for (WindowLine& line : ReadLines(files, program_folder)) {
    if (!line.Key.empty()) values[line.Key] = std::move(line.Value);
  }
  return values;
}

bool WriteWindowFile(Files& files, const std::string& program_folder, const WindowValues& values) {
  WindowValues left = values;
  std::string text;
  const auto put = [&](const std::string& key, const std::string& value) {
    const auto line = LineOf(key, value);
    if (line && !value.empty()) text += *line + kLineEnd;
  };
  for (const WindowLine& line : ReadLines(files, program_folder)) {
    if (line.Key.empty() || !values.contains(line.Key)) {
      text += line.Text + kLineEnd;
    } else if (left.erase(line.Key) == 1) {
      put(line.Key, values.at(line.Key));
    }
  }
  for (const auto& [key, value] : left)
    put(key, value);
  return files.Replace(WindowPath(program_folder), text);
}

std::optional<int> WindowNumber(const WindowValues& values, const std::string& key, int lowest,
                                int highest) {
  const auto found = values.find(key);
  if (found == values.end()) return std::nullopt;
  return PlainWhole(found->second, lowest, highest);
}

std::optional<std::vector<int>> WindowNumbers(const WindowValues& values, const std::string& key,
                                              std::size_t count) {
  const auto found = values.find(key);
  if (found == values.end()) return std::nullopt;
  std::vector<int> numbers;
  for (const std::string_view part : Split(found->second, ',')) {
    const auto number = PlainWhole(Trim(part), -kFarthest, kFarthest);
    if (!number || numbers.size() == count) return std::nullopt;
    numbers.push_back(*number);
  }
  if (numbers.size() != count) return std::nullopt;
  return numbers;
}

}  // namespace zepril
