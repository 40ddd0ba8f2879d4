// The texts of the start window's controls, from one table with a row a control.
#pragma once

namespace zepril {

struct StartPanelControls;

// Gives every control its name and its texts.
void NameStartPanel(StartPanelControls& controls);

}  // namespace zepril
