// The columns of a record: where each group stands and how it is read.
#include "core/station_record.h"

#include <algorithm>

#include "core/position_text.h"
#include "core/text_fields.h"

namespace zepril {

StationRecord::StationRecord(std::string_view line) {
  text_.fill(' ');
  std::copy_n(line.begin(), std::min(line.size(), kLength), text_.begin());
}

std::string_view StationRecord::Columns(std::size_t first, std::size_t last) const {
  return Text().substr(first - 1, last - first + 1);
}

void StationRecord::Put(std::size_t first, std::size_t last, std::string_view text) {
  for (std::size_t column = first; column <= last; ++column) {
    const std::size_t at = column - first;
    text_[column - 1] = at < text.size() ? text[at] : ' ';
  }
}

bool StationRecord::IsBlank() const {
  return Trimmed().empty();
}

std::string_view StationRecord::Trimmed() const {
  return Trim(Text());
}

std::string_view StationRecord::RightTrimmed() const {
  return TrimRight(Text());
}

double StationRecord::NorthKm() const {
  return PositionTextKm(NorthText());
}

double StationRecord::EastKm() const {
  return PositionTextKm(EastText());
}

std::string_view StationRecord::Call() const {
  return Trim(Columns(33, 41));
}

std::string_view StationRecord::Info() const {
  return Trim(Columns(43, 89));
}

std::string_view StationRecord::HeardViaKey() const {
  return Trim(Columns(91, 99));
}

std::string_view StationRecord::HeardViaField() const {
  return Trim(Columns(91, 100));
}

std::string_view StationRecord::Symbol() const {
  return Trim(Columns(101, 103));
}

std::string_view StationRecord::SymbolText() const {
  return Trim(Columns(105, 120));
}

int StationRecord::ClassDigit() const {
  const std::string_view text = SymbolText();
  return !text.empty() && IsDigit(text.back()) ? text.back() - '0' : 0;
}

int StationRecord::MinuteOfDay() const {
  return static_cast<int>(Val(Columns(8, 9))) * 60 + static_cast<int>(Val(Columns(10, 11)));
}

}  // namespace zepril
