// Takes sender, path and information out of a monitor line and writes the normal header.
#include "reception/agw_monitor.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kSenderColumn = 6;  // behind the port digit and ":Fm "

// "WIDE1-1*,WIDE2-1 <UI ..." as "WIDE1-1*>WIDE2-1>".
void AppendPath(std::string_view behind_via, std::string& collected) {
  std::string_view path = Trim(behind_via);
  path = Trim(path.substr(0, path.find('<')));
  for (char c : path)
    collected += c == ',' ? '>' : c;
  collected += '>';
}

}  // namespace

bool HasAgwForm(std::string_view text) {
  constexpr std::ptrdiff_t kReturns = 3;
  return std::count(text.begin(), text.end(), '\r') == kReturns;
}

bool AppendAgwFrame(std::string_view text, std::string& collected) {
  const std::size_t line_end = text.find('\r');
  const std::string_view line = text.substr(0, line_end);
  if (line.size() < kSenderColumn) return false;

  // The sender stands before "To", the destination behind it.
  const std::string_view from_sender = line.substr(kSenderColumn - 1);
  const std::size_t to = from_sender.find("To");
  const std::size_t to_word = from_sender.find("To ");
  const std::size_t details = line.find(" <");
  if (to == std::string_view::npos || to_word == std::string_view::npos ||
      details == std::string_view::npos) {
    return false;
  }
  const std::string_view sender = Trim(from_sender.substr(0, to));
  const std::string_view behind_to = TrimLeft(from_sender.substr(to_word + 3));
  const std::size_t via = behind_to.find("Via");
  const std::string_view destination =
      Trim(behind_to.substr(0, via != std::string_view::npos ? via : behind_to.find(" <")));

  // A frame that nobody repeated was heard from its sender.
  collected += sender;
  if (line.find('*') == std::string_view::npos) collected += '*';
  collected += '>';
  if (via != std::string_view::npos) AppendPath(behind_to.substr(via + 3), collected);
  collected += destination;

  // The marker is the first word of the details.
  const std::string_view word = line.substr(details + 2);
  collected += " <";
  collected += word.substr(0, word.find(' '));
  collected += ">:\r\n";

  // The information stands between the first line and the pair of returns.
  if (line_end != std::string_view::npos) {
    const std::string_view rest = text.substr(line_end + 1);
    collected += rest.substr(0, rest.find("\r\r"));
  }
  collected += "\r\n";
  return true;
}

Brought BringAgwText(std::string_view raw, std::string& normal) {
  const bool whole = HasAgwForm(raw);
  if (whole) AppendAgwFrame(raw, normal);
  return {raw.size(), raw, whole};
}

}  // namespace zepril
