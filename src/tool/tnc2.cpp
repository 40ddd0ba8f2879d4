// Rewrites a header of the common form, with its asterisks.
#include "tool/tnc2.h"

namespace zepril {

bool Tnc2ToNormal(std::string_view line, std::string& normal) {
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos) return false;
  const std::string_view header = line.substr(0, colon);
  const std::size_t arrow = header.find('>');
  if (arrow == std::string_view::npos || arrow == 0) return false;
  const std::string_view elements = header.substr(arrow + 1);
  const std::size_t comma = elements.find(',');
  const std::string_view destination = elements.substr(0, comma);
  if (destination.empty()) return false;

  normal.assign(header.substr(0, arrow));
  std::string_view path;
  if (comma != std::string_view::npos) path = elements.substr(comma + 1);
  if (path.find('*') == std::string_view::npos && !normal.ends_with('*')) normal += '*';
  normal += '>';
  if (!path.empty()) {
    for (char c : path)
      normal += c == ',' ? '>' : c;
    normal += '>';
  }
  normal += destination;
  normal += " <UI>:\r\n";
  normal += line.substr(colon + 1);
  normal += "\r\n";
  return true;
}

}  // namespace zepril
