// The texts of the main window's controls, from one table with a row a control.
#pragma once

namespace zepril {

struct MainWindowControls;

// Gives every control its name and the program's own words, before anything else is set.
void NameMainWindow(MainWindowControls& controls);

// Captions and tool tips by the language number (units: 1 English; tens 1: tool tips on).
void SetMainWindowLabels(MainWindowControls& controls, int language);

}  // namespace zepril
