// A text that is shown or said to the operator, in every language the program speaks.
//
// The tables of this folder hold them, letter for letter, double blanks included. A language is one
// more member of `Text`: so a row shows a translator all languages side by side, and the compiler
// names each row that lacks one (a missing member is an error in this build). What goes on the air
// or into a file speaks no language and does not stand here.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace zepril {

struct Text {
  const char* English;

  constexpr bool IsThere() const { return English != nullptr; }
  constexpr operator std::string_view() const { return English != nullptr ? English : ""; }
  operator std::string() const { return std::string(std::string_view(*this)); }
  // "%1" to "%9" stand for the values, wherever a language puts them; one that is not given stays.
  //   Text{"The file %1 is full"}.With({"A.POI"}) is "The file A.POI is full"
  std::string With(std::initializer_list<std::string_view> values) const;
};

}  // namespace zepril
