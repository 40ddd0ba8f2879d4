// What tests of the toolkit's rooms share. An application without a screen stands while they run.
#pragma once

#include <functional>

namespace zepril {

// Lets the event loop run until `done`, at most two seconds. Returns what `done` says.
bool PumpUntil(const std::function<bool()>& done);

}  // namespace zepril
