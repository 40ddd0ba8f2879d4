// Finds, replaces and adds the line of a port number, every other byte left as it is.
#include "config/ports_file.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "core/text_fields.h"
#include "platform/code_page.h"

namespace zepril {
namespace {

constexpr std::size_t kLongestFile = 4U << 20;  // bytes
constexpr std::string_view kKey = "COM";
constexpr const char* kLineEnd = "\r\n";

struct PortLine {
  int Number = 0;
  std::string_view Device;
};

// Nothing for a line that is no port's.
std::optional<PortLine> ReadPortLine(std::string_view line) {
  if (line.size() > kLongestPortLine) return std::nullopt;
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view key = Trim(line.substr(0, equals));
  const std::string_view digits = key.substr(std::min(kKey.size(), key.size()));
  if (!EqualFolded(key.substr(0, kKey.size()), kKey) || digits.empty()) return std::nullopt;
  if (!std::all_of(digits.begin(), digits.end(), IsDigit)) return std::nullopt;
  const std::optional<int> number = WholeVal(digits, 1, kHighestPortNumber);
  const std::string_view device = Trim(line.substr(equals + 1));
  if (!number || device.empty()) return std::nullopt;
  if (std::any_of(device.begin(), device.end(), IsControlCharacter)) return std::nullopt;
  return PortLine{*number, device};
}

// A line of the text with its end, which the text's last one may lack.
struct TextLine {
  std::string_view Text;
  std::string_view End;
};

std::vector<TextLine> LinesOf(std::string_view text) {
  std::vector<TextLine> lines;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view behind = text.substr(length);
    const std::size_t end =
        behind.starts_with(kLineEnd) ? 2 : std::min<std::size_t>(1, behind.size());
    lines.push_back({text.substr(0, length), behind.substr(0, end)});
    text.remove_prefix(length + end);
  }
  return lines;
}

// `text` with the port's line replaced or, where it has none, added.
std::string WithPortLine(std::string_view text, int number, const std::string& port_line) {
  std::vector<TextLine> lines = LinesOf(text);
  const std::size_t read = std::min<std::size_t>(lines.size(), kMostPortLines);
  for (std::size_t at = read; at-- > 0;) {
    const auto found = ReadPortLine(lines[at].Text);
    if (!found || found->Number != number) continue;
    lines[at].Text = port_line;
    std::string changed;
    for (const TextLine& line : lines)
      changed.append(line.Text).append(line.End);
    return changed;
  }
  // At the end of a file that is too long a new line would not be read.
  if (lines.size() >= kMostPortLines) return port_line + kLineEnd + std::string(text);
  std::string longer(text);
  if (!lines.empty() && lines.back().End.empty()) longer += kLineEnd;
  return longer + port_line + kLineEnd;
}

}  // namespace

std::string PortsPath(const std::string& program_folder) {
  return program_folder + "\\PORTS.TXT";
}

std::string DeviceOfPort(const Files& files, const std::string& program_folder, int number) {
  std::string device;
  int lines = 0;
  files.ReadLines(PortsPath(program_folder), [&](std::string_view line) {
    const auto port = ReadPortLine(line);
    if (port && port->Number == number) device = port->Device;
    return ++lines < kMostPortLines;
  });
  return device;
}

bool ChooseDeviceOfPort(Files& files, const std::string& program_folder, int number,
                        std::string_view device) {
  const std::string line =
      std::string(kKey) + WholeNumber(number) + "=" + std::string(Trim(device));
  const auto read_again = ReadPortLine(line);
  if (!read_again || read_again->Device != Trim(device)) return false;
  const std::string path = PortsPath(program_folder);
  const auto text = files.ReadAll(path, kLongestFile);
  if (!text && files.Exists(path)) return false;
  return files.Replace(path, WithPortLine(text.value_or(""), number, line));
}

}  // namespace zepril
