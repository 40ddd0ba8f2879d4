// The list of raw packets: the last 400 lines of collected text.
#pragma once

#include <string_view>

#include "core/controls.h"
#include "core/state/reception.h"

namespace zepril {

// Adds collected text to the lines. A line feed begins a new line; when the count passes 400 the
// oldest line goes. Characters of code 27 and below are not stored.
void AddRawText(std::string_view collected, ReceptionState& reception);

// Reloads the control from all lines, 0 to the count.
void ShowRawLines(const ReceptionState& reception, ListBox& list);

}  // namespace zepril
