// The state of the main window's controls before the start: panels closed, named, captions in
// English.
#pragma once

namespace zepril {

struct MainWindowControls;

void SetInitialControls(MainWindowControls& controls);

}  // namespace zepril
