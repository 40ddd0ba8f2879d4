// What a radio interface has heard, as it came: raw text and how it is written.
#pragma once

#include <cstddef>
#include <string_view>

namespace zepril {

class HeardText {
 public:
  virtual ~HeardText() = default;
  // The name of its row in `reception/dialects`.
  virtual std::string_view Dialect() const = 0;
  // A receive pass begins; it takes once or several times.
  virtual void PassBegins() {}
  // The next piece that may be whole; empty when there is none. May wait a moment for the rest.
  // Valid until the next call of anything here.
  virtual std::string_view Next() = 0;
  // So many characters at the front of that piece were used. Where a piece may end within a frame,
  // the rest is kept and comes again with what follows it.
  virtual void Taken(std::size_t count) = 0;
  // Characters that could be taken at once.
  virtual std::size_t Waiting() const { return 0; }
};

}  // namespace zepril
