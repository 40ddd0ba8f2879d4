// Prints the kilometres of the bar between its dashes.
#include "map/scale_text.h"

#include "core/text_fields.h"

namespace zepril {

std::string PlainNumber(double value) {
  std::string text = ShortNumber(value);
  const std::size_t point = text.front() == '-' ? 1 : 0;
  if (text.size() > point && text[point] == '.') text.insert(point, 1, '0');
  return text;
}

std::string ScaleText(double metres_per_pixel) {
  constexpr char kDash = '\x96';  // the long dash of code page 1252
  std::string text = PlainNumber(metres_per_pixel / 10.0);
  if (text.size() % 2 != 0) text.insert(0, 1, ' ');
  text = Right(text + " km", 9);
  while (text.size() < 9)
    text = " " + text + " ";
  while (text.size() < 11)
    text = "-" + text + "-";
  return std::string(" ") + kDash + text + kDash;
}

}  // namespace zepril
